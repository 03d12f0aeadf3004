#include "edit/TypedText.h"
#include "gui/editor/DialogProfileEditor.h"
#include "profile/ComposedId.h"

#include <QTreeWidget>

// The slots of the fields: each writes into the selected record.

namespace gui {

template <typename Record, typename Write>
void DialogProfileEditor::change(Record* record, Write write)
{
    if (isGuarded() || record == nullptr) {
        return;
    }
    write(*record);
    if (QTreeWidgetItem* item = tree().currentItem()) {
        m_items.refresh(*item);
    }
    markChanged();
}

template <typename Write>
void DialogProfileEditor::changeParameter(Write write)
{
    change(m_selection.parameterOf(profile()), write);
}

void DialogProfileEditor::slotHeader(const QString& text)
{
    change(&profile(), [&](ArincProfile& changed) { changed.header = text; });
}

void DialogProfileEditor::slotProfileName(const QString& text)
{
    change(&profile(), [&](ArincProfile& changed) { changed.name = zul::oneLine(text); });
}

void DialogProfileEditor::slotProfileId(int number)
{
    change(&profile(),
           [&](ArincProfile& changed) { changed.id = static_cast<std::uint32_t>(number); });
}

void DialogProfileEditor::slotProfileSubId(int number)
{
    change(&profile(),
           [&](ArincProfile& changed) { changed.subId = static_cast<std::uint32_t>(number); });
}

void DialogProfileEditor::slotFidName(const QString& text)
{
    change(m_selection.fidOf(profile()), [&](ProfileUserFid& fid) {
        fid.name = zul::oneLine(text);
        refreshChapter(fid.code);
    });
}

void DialogProfileEditor::slotFidValue(int code)
{
    const std::uint32_t from = m_selection.fid;
    const auto to = static_cast<std::uint32_t>(code);
    if (isGuarded()) {
        return;
    }
    if (!m_edit.setUserFidCode(from, to)) {
        restore();
        return;
    }
    m_selection.fid = to;
    guarded([&] { m_items.move(*tree().currentItem(), to); });
    refreshChapter(from);
    refreshChapter(to);
    markChanged();
}

void DialogProfileEditor::slotUnitName(const QString& text)
{
    change(m_selection.unitOf(profile()), [&](const ProfileUserUnit& unit) {
        m_items.refreshParameters(m_edit.renameUserUnit(unit.code, zul::oneLine(text)));
        m_areUnitsOld = true;
    });
}

void DialogProfileEditor::slotUnitValue(int code)
{
    const auto to = static_cast<std::uint32_t>(code);
    if (isGuarded()) {
        return;
    }
    if (!m_edit.setUserUnitCode(m_selection.unit, to)) {
        restore();
        return;
    }
    m_selection.unit = to;
    m_areUnitsOld = true;
    guarded([&] { m_items.move(*tree().currentItem(), to); });
    markChanged();
}

void DialogProfileEditor::slotEnumName(const QString& text)
{
    const QString name = zul::oneLine(text);
    if (isGuarded()) {
        return;
    }
    if (!m_edit.renameEnumeration(m_selection.enumeration, name)) {
        restore();
        return;
    }
    m_selection.enumeration = name;
    m_areDataTypesOld = true;
    guarded([&] { m_items.move(*tree().currentItem(), name); });
    markChanged();
}

void DialogProfileEditor::slotEnumValue(int number)
{
    if (isGuarded()) {
        return;
    }
    if (!m_edit.setEnumValue(m_selection.enumeration, m_selection.value, number)) {
        restore();
        return;
    }
    m_selection.value = number;
    guarded([&] { m_items.move(*tree().currentItem(), number); });
    markChanged();
}

void DialogProfileEditor::slotEnumString(const QString& text)
{
    change(m_selection.valueOf(profile()),
           [&](ProfileEnumValue& entry) { entry.label = zul::oneLine(text); });
}

void DialogProfileEditor::slotChapterFid(int code)
{
    const std::uint32_t from = m_selection.chapter;
    const auto to = static_cast<std::uint32_t>(code);
    if (isGuarded() || !m_edit.moveChapter(from, to)) {
        return;
    }
    m_selection.chapter = to;
    guarded([&] {
        if (from != to) {
            delete m_items.chapter(to); // whose place is taken
        }
        m_items.move(*tree().currentItem(), to);
    });
    markChanged();
}

void DialogProfileEditor::slotNme(const QString& text)
{
    changeParameter([&](ProfileParameter& parameter) { parameter.nme = zul::oneLine(text); });
}

void DialogProfileEditor::slotLcc(int code)
{
    changeParameter([&](ProfileParameter& parameter) {
        parameter.lcc = static_cast<std::uint32_t>(code);
        guarded([&] { showIdentifier(parameter); });
    });
}

void DialogProfileEditor::slotDoc(int number)
{
    const ProfileParameter* selected = m_selection.parameterOf(profile());
    if (selected != nullptr && !zul::hasServer(selected->lcc)) {
        changeParameter([&](ProfileParameter& parameter) {
            m_edit.setDoc(parameter, static_cast<std::uint32_t>(number));
        });
    }
}

void DialogProfileEditor::slotFid(int code)
{
    const ProfileParameter* selected = m_selection.parameterOf(profile());
    if (selected != nullptr && zul::hasServer(selected->lcc)) {
        changeParameter([&](ProfileParameter& parameter) {
            ProfileEdit::setServerFid(parameter, static_cast<std::uint32_t>(code));
        });
    }
}

void DialogProfileEditor::slotSid(int number)
{
    changeParameter(
        [&](ProfileParameter& parameter) { parameter.sid = static_cast<std::uint32_t>(number); });
}

void DialogProfileEditor::slotLcl(bool isSet)
{
    changeParameter([&](ProfileParameter& parameter) { parameter.lcl = isSet ? 1 : 0; });
}

void DialogProfileEditor::slotPvt(bool isSet)
{
    changeParameter([&](ProfileParameter& parameter) { parameter.pvt = isSet ? 1 : 0; });
}

void DialogProfileEditor::slotSppByte(int byte)
{
    changeParameter(
        [&](ProfileParameter& parameter) { parameter.sppByte = static_cast<std::uint32_t>(byte); });
}

void DialogProfileEditor::slotSppBit(int bit)
{
    changeParameter(
        [&](ProfileParameter& parameter) { parameter.sppBit = static_cast<std::uint32_t>(bit); });
}

void DialogProfileEditor::slotEppByte(int byte)
{
    changeParameter(
        [&](ProfileParameter& parameter) { parameter.eppByte = static_cast<std::uint32_t>(byte); });
}

void DialogProfileEditor::slotEppBit(int bit)
{
    changeParameter(
        [&](ProfileParameter& parameter) { parameter.eppBit = static_cast<std::uint32_t>(bit); });
}

void DialogProfileEditor::slotPua(int code)
{
    changeParameter([&](ProfileParameter& parameter) {
        m_edit.setUnit(parameter, static_cast<std::uint32_t>(code));
    });
}

void DialogProfileEditor::slotDtn(int choice)
{
    changeParameter([&](ProfileParameter& parameter) { m_edit.setDataType(parameter, choice); });
}

void DialogProfileEditor::slotMin(const QString& text)
{
    if (const auto number = zul::typedNumber(text)) {
        changeParameter([&](ProfileParameter& parameter) { parameter.min = *number; });
    }
}

void DialogProfileEditor::slotMax(const QString& text)
{
    if (const auto number = zul::typedNumber(text)) {
        changeParameter([&](ProfileParameter& parameter) { parameter.max = *number; });
    }
}

void DialogProfileEditor::slotUpr(int milliseconds)
{
    changeParameter([&](ProfileParameter& parameter) { parameter.upr = milliseconds; });
}

void DialogProfileEditor::slotLat(const QString& text)
{
    if (const auto number = zul::typedNumber(text)) {
        changeParameter([&](ProfileParameter& parameter) { parameter.lat = *number; });
    }
}

void DialogProfileEditor::slotRci(int code)
{
    changeParameter(
        [&](ProfileParameter& parameter) { parameter.rci = static_cast<std::uint32_t>(code); });
}

void DialogProfileEditor::slotNotes(const QString& text)
{
    changeParameter([&](ProfileParameter& parameter) { parameter.notes = zul::oneLine(text); });
}

} // namespace gui
