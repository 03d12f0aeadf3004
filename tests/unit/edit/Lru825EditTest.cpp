#include "edit/Lru825Edit.h"

#include "profile/Lru825Writer.h"
#include "tests/support/TestHome.h"
#include "tests/unit/profile/HostileFiles.h"
#include "tests/unit/profile/Lru825Sample.h"

#include <gtest/gtest.h>

namespace {

using namespace zul;

Lru825Selection selected(Lru825Item item)
{
    Lru825Selection selection;
    selection.item = item;
    return selection;
}

class Lru825EditTest : public testing::Test
{
protected:
    /// Adds a record to a list and selects it.
    void add(Lru825Item list)
    {
        edit.select(selected(list));
        addHere();
    }
    void addHere(std::uint32_t rci = 0) { edit.select(edit.add(rci)); }
    void selectInside(Lru825Item item)
    {
        Lru825Selection inside = edit.selection();
        inside.item = item;
        edit.select(inside);
    }

    Lru825Edit edit;
    test::TestHome home;
};

TEST_F(Lru825EditTest, NothingSelectedIsThisNumber)
{
    EXPECT_EQ(Lru825Selection::nothing, 99999999U);
    const Lru825Selection& none = edit.selection();
    EXPECT_EQ(none.item, Lru825Item::Nothing);
    for (const std::uint32_t serial :
         {none.interface, none.transmitMessage, none.receiveMessage, none.assignment,
          none.reference, none.parameter, none.enumEntry}) {
        EXPECT_EQ(serial, 99999999U);
    }
    EXPECT_EQ(edit.interface(), nullptr);
    EXPECT_EQ(edit.message(), nullptr);
    EXPECT_EQ(edit.assignment(), nullptr);
    EXPECT_EQ(edit.dataField(), nullptr);
    EXPECT_EQ(edit.reference(), nullptr);
    EXPECT_EQ(edit.parameter(), nullptr);
    EXPECT_EQ(edit.enumEntry(), nullptr);
}

TEST_F(Lru825EditTest, NewDocumentIsEmptyButForItsName)
{
    EXPECT_EQ(edit.document().name, QLatin1String("NoName"));
    edit.document() = test::sampleDocument();
    add(Lru825Item::ParameterList);
    edit.clear();
    EXPECT_EQ(edit.document().name, QLatin1String("NoName"));
    EXPECT_TRUE(edit.document().id.isEmpty());
    EXPECT_TRUE(edit.document().lruName.isEmpty());
    EXPECT_TRUE(edit.document().interfaces.empty());
    EXPECT_TRUE(edit.document().transmitMessages.empty());
    EXPECT_TRUE(edit.document().receiveMessages.empty());
    EXPECT_TRUE(edit.document().parameters.empty());
    EXPECT_EQ(edit.selection().item, Lru825Item::Nothing);
}

TEST_F(Lru825EditTest, AddsAnInterfaceToTheListAndBesideAnother)
{
    add(Lru825Item::InterfaceList);
    ASSERT_NE(edit.interface(), nullptr);
    EXPECT_EQ(edit.interface()->name, QLatin1String("InterfaceName"));
    const std::uint32_t first = edit.selection().interface;
    addHere();
    EXPECT_EQ(edit.selection().item, Lru825Item::Interface);
    EXPECT_GT(edit.selection().interface, first);
    EXPECT_EQ(edit.document().interfaces.size(), 2U);
}

TEST_F(Lru825EditTest, AddsMessagesToTheListThatIsSelected)
{
    add(Lru825Item::TransmitList);
    addHere();
    EXPECT_EQ(edit.document().transmitMessages.size(), 2U);
    EXPECT_EQ(edit.message()->name, QLatin1String("MessageName"));
    EXPECT_EQ(edit.selection().receiveMessage, Lru825Selection::nothing);
    add(Lru825Item::ReceiveList);
    addHere();
    EXPECT_EQ(edit.document().transmitMessages.size(), 2U);
    EXPECT_EQ(edit.document().receiveMessages.size(), 2U);
    EXPECT_EQ(edit.message()->name, QLatin1String("MessageName"));
    EXPECT_EQ(edit.message()->serial, edit.selection().receiveMessage);
    EXPECT_EQ(edit.selection().transmitMessage, Lru825Selection::nothing);
}

TEST_F(Lru825EditTest, AddsAssignmentsWithoutANameAndWithTheGivenChannel)
{
    for (const Lru825Item list : {Lru825Item::TransmitList, Lru825Item::ReceiveList}) {
        add(list);
        selectInside(Lru825Item::AssignmentList);
        addHere(2);
        ASSERT_NE(edit.assignment(), nullptr);
        EXPECT_TRUE(edit.assignment()->name.isEmpty());
        EXPECT_EQ(edit.assignment()->rci, 2U);
        addHere(3);
        EXPECT_EQ(edit.message()->assignments.size(), 2U);
        EXPECT_EQ(edit.assignment(), &edit.message()->assignments.at(1));
        EXPECT_EQ(edit.assignment()->rci, 3U);
    }
}

TEST_F(Lru825EditTest, AddsReferencesAtPositionZero)
{
    add(Lru825Item::ReceiveList);
    selectInside(Lru825Item::DataField);
    addHere();
    addHere();
    EXPECT_EQ(edit.dataField()->parameters.size(), 2U);
    const Lru825Reference* made = edit.reference();
    ASSERT_EQ(made, &edit.dataField()->parameters.at(1));
    EXPECT_EQ(made->name, QLatin1String("Parameter"));
    for (const Lru825Position& position : {made->spp, made->epp, made->pvsSpp, made->pvsEpp}) {
        EXPECT_EQ(position.byte, 0U);
        EXPECT_EQ(position.bit, 0U);
    }
}

TEST_F(Lru825EditTest, AddsParametersAndEntries)
{
    add(Lru825Item::ParameterList);
    EXPECT_EQ(edit.parameter()->name, QLatin1String("Parameter"));
    addHere();
    EXPECT_EQ(edit.document().parameters.size(), 2U);
    edit.select(edit.addEnumEntry());
    ASSERT_NE(edit.enumEntry(), nullptr);
    EXPECT_EQ(edit.enumEntry()->key, QLatin1String("Value"));
    EXPECT_EQ(edit.enumEntry()->value, 0);
    addHere(); // beside an entry
    EXPECT_EQ(edit.selection().item, Lru825Item::EnumEntry);
    EXPECT_EQ(edit.parameter()->enumEntries.size(), 2U);
    EXPECT_EQ(edit.document().parameters.size(), 2U);
}

TEST_F(Lru825EditTest, AddsNothingWhereThereIsNoList)
{
    for (const Lru825Item item :
         {Lru825Item::Nothing, Lru825Item::Header, Lru825Item::Lru, Lru825Item::Communication}) {
        edit.select(selected(item));
        EXPECT_FALSE(edit.canAdd());
        EXPECT_EQ(edit.add(0).item, Lru825Item::Nothing);
    }
    for (const Lru825Item item :
         {Lru825Item::AssignmentList, Lru825Item::Assignment, Lru825Item::DataField,
          Lru825Item::Reference, Lru825Item::EnumEntry}) { // without the record that owns them
        edit.select(selected(item));
        EXPECT_EQ(edit.add(0).item, Lru825Item::Nothing);
    }
    EXPECT_TRUE(edit.document().interfaces.empty());
    EXPECT_TRUE(edit.document().parameters.empty());
}

TEST_F(Lru825EditTest, SerialsCountOn)
{
    add(Lru825Item::ParameterList);
    const std::uint32_t first = edit.selection().parameter;
    add(Lru825Item::InterfaceList);
    EXPECT_EQ(edit.selection().interface, first + 1);
    add(Lru825Item::ParameterList);
    EXPECT_EQ(edit.selection().parameter, first + 2);
}

TEST_F(Lru825EditTest, RemovesTheSelectedRecordAlone)
{
    for (const Lru825Item list : {Lru825Item::InterfaceList, Lru825Item::TransmitList,
                                  Lru825Item::ReceiveList, Lru825Item::ParameterList}) {
        add(list);
        add(list);
        EXPECT_TRUE(edit.canRemove());
        EXPECT_TRUE(edit.remove());
        EXPECT_EQ(edit.selection().item, Lru825Item::Nothing);
        EXPECT_FALSE(edit.remove());
    }
    EXPECT_EQ(edit.document().interfaces.size(), 1U);
    EXPECT_EQ(edit.document().transmitMessages.size(), 1U);
    EXPECT_EQ(edit.document().receiveMessages.size(), 1U);
    EXPECT_EQ(edit.document().parameters.size(), 1U);
}

TEST_F(Lru825EditTest, RemovesInsideARecord)
{
    add(Lru825Item::ReceiveList);
    selectInside(Lru825Item::AssignmentList);
    addHere();
    edit.assignment()->name = QStringLiteral("kept");
    addHere();
    const std::uint32_t owner = edit.selection().receiveMessage;
    EXPECT_TRUE(edit.remove());
    const Lru825Message& message = edit.document().receiveMessages.at(owner);
    ASSERT_EQ(message.assignments.size(), 1U);
    EXPECT_EQ(message.assignments.at(0).name, QLatin1String("kept"));

    Lru825Selection inside = selected(Lru825Item::DataField);
    inside.receiveMessage = owner;
    edit.select(inside);
    addHere();
    EXPECT_TRUE(edit.remove());
    EXPECT_TRUE(message.dataField.parameters.empty());

    add(Lru825Item::ParameterList);
    const std::uint32_t parameter = edit.selection().parameter;
    edit.select(edit.addEnumEntry());
    EXPECT_TRUE(edit.remove());
    EXPECT_TRUE(edit.document().parameters.at(parameter).enumEntries.empty());
}

TEST_F(Lru825EditTest, ListsAndFixedPartsCannotBeRemoved)
{
    edit.document() = test::sampleDocument();
    for (const Lru825Item item :
         {Lru825Item::Nothing, Lru825Item::Header, Lru825Item::Lru, Lru825Item::InterfaceList,
          Lru825Item::Communication, Lru825Item::TransmitList, Lru825Item::ReceiveList,
          Lru825Item::AssignmentList, Lru825Item::DataField, Lru825Item::ParameterList}) {
        edit.select(selected(item));
        EXPECT_FALSE(edit.canRemove());
        EXPECT_FALSE(edit.remove());
    }
    EXPECT_EQ(edit.document().interfaces.size(), 2U);
    EXPECT_EQ(edit.document().parameters.size(), 2U);
}

TEST_F(Lru825EditTest, TextsOfTheTree)
{
    Lru825Message message;
    EXPECT_EQ(lru825Text(message), QLatin1String("Message MessageName"));
    Lru825Parameter parameter;
    EXPECT_EQ(lru825Text(parameter), QLatin1String("0 Parameter"));
    parameter.fid = 12;
    parameter.name = QStringLiteral("%1 <Speed>");
    EXPECT_EQ(lru825Text(parameter), QLatin1String("12 %1 <Speed>"));
    parameter.fid = static_cast<std::uint32_t>(-3);
    EXPECT_EQ(lru825Text(parameter), QLatin1String("-3 %1 <Speed>"));
}

TEST_F(Lru825EditTest, NamesAreListedOnceInOrderOfCreation)
{
    for (const char* name : {"b", "a", "b", ""}) {
        add(Lru825Item::ParameterList);
        edit.setParameterName(QLatin1String(name));
        add(Lru825Item::InterfaceList);
        edit.setInterfaceName(QLatin1String(name));
    }
    const QStringList expected{QStringLiteral("b"), QStringLiteral("a"), QString()};
    EXPECT_EQ(edit.parameterNames(), expected);
    EXPECT_EQ(edit.interfaceNames(), expected);
}

TEST_F(Lru825EditTest, NamesShareTheirDataUntilOneChanges)
{
    for (const Lru825Item list : {Lru825Item::ParameterList, Lru825Item::InterfaceList}) {
        const auto names = [&] {
            return list == Lru825Item::ParameterList ? edit.parameterNames()
                                                     : edit.interfaceNames();
        };
        auto changed = [&, last = names()]() mutable {
            const QStringList now = names();
            const bool result = !now.isSharedWith(last);
            last = now;
            return result;
        };
        add(list);
        EXPECT_TRUE(changed());
        EXPECT_FALSE(changed());
        edit.setInterfaceName(QStringLiteral("other"));
        edit.setParameterName(QStringLiteral("other"));
        EXPECT_TRUE(changed());
        EXPECT_EQ(names(), QStringList{QStringLiteral("other")});
        EXPECT_TRUE(edit.remove());
        EXPECT_TRUE(names().isEmpty());
    }
}

TEST_F(Lru825EditTest, RenamingLeavesReferencesAlone)
{
    edit.document() = test::sampleDocument();
    Lru825Selection selection = selected(Lru825Item::Parameter);
    selection.parameter = edit.document().parameters.begin()->first;
    edit.select(selection);
    edit.setParameterName(QStringLiteral("Renamed"));
    EXPECT_EQ(edit.document().transmitMessages.begin()->second.dataField.parameters.at(0).name,
              QLatin1String("Speed"));
}

TEST_F(Lru825EditTest, ReadsWhatItWrote)
{
    edit.document() = test::sampleDocument();
    const QString path = home.file(QStringLiteral("lru.xml"));
    ASSERT_TRUE(edit.write(path));
    edit.clear();
    EXPECT_TRUE(edit.parameterNames().isEmpty());
    ASSERT_TRUE(edit.read(path));
    EXPECT_EQ(edit.document().name, QLatin1String("Document"));
    EXPECT_EQ(edit.parameterNames().size(), 2);
    EXPECT_EQ(edit.document().transmitMessages.begin()->second.txp, 0.0);
    EXPECT_FALSE(edit.write(home.path() + QStringLiteral("none/lru.xml")));
}

TEST_F(Lru825EditTest, FileThatCannotBeReadLeavesTheDocument)
{
    edit.document() = test::sampleDocument();
    Lru825Selection selection = selected(Lru825Item::Parameter);
    selection.parameter = edit.document().parameters.begin()->first;
    edit.select(selection);
    const test::HostileFiles hostile("Arinc825Profile");
    for (const test::HostileFiles::File& file : hostile.files()) {
        EXPECT_FALSE(edit.read(file.path)) << file.name;
        EXPECT_EQ(edit.document().name, QLatin1String("Document")) << file.name;
        ASSERT_NE(edit.parameter(), nullptr) << file.name;
    }
}

} // namespace
