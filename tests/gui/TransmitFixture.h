#pragma once

#include "gui/controls/QwtComboBox.h"
#include "gui/traffic/DialogTransmit.h"
#include "gui/traffic/MessageEditor.h"
#include "gui/traffic/QwtTransmitButton.h"
#include "gui/traffic/TransmitTable.h"
#include "message/MessageCan.h"
#include "project/ObjectTransmit.h"
#include "project/Project.h"
#include "tests/support/ProbeObjects.h"
#include "tests/support/SettableClock.h"
#include "tests/support/TestHome.h"

#include <QApplication>
#include <QLineEdit>
#include <QPointer>
#include <QPushButton>
#include <QSpinBox>
#include <QTest>

#include <gtest/gtest.h>

namespace zul::test {

/// An interface that keeps what it is to send.
class RecordingInterface : public ProbeInterface
{
public:
    void receive(MessageContainer& batch) override { batches.push_back(batch); }

    const MessageCan& frame(std::size_t batch, std::size_t index = 0) const
    {
        return dynamic_cast<const MessageCan&>(*batches.at(batch).messages().at(index));
    }
    /// The identifiers of each batch.
    std::vector<std::vector<std::uint32_t>> ids() const
    {
        std::vector<std::vector<std::uint32_t>> all;
        for (const MessageContainer& batch : batches) {
            all.emplace_back();
            for (const auto& message : batch.messages()) {
                all.back().push_back(dynamic_cast<const MessageCan&>(*message).id());
            }
        }
        return all;
    }

    std::vector<MessageContainer> batches;
};

/// Replaces the text of a line edit by keys.
inline void type(QLineEdit* line, const char* text)
{
    line->selectAll();
    if (*text == '\0') {
        QTest::keyClick(line, Qt::Key_Delete);
    }
    QTest::keyClicks(line, QLatin1String(text));
}

/// Replaces the number of a spin box by keys, return included.
inline void type(QSpinBox* box, const char* text)
{
    box->selectAll();
    QTest::keyClicks(box, QLatin1String(text));
    QTest::keyClick(box, Qt::Key_Return);
}

/// Goes to the item whose data is `value` by keys. Each item on the way is chosen, too.
inline void choose(QComboBox* box, int value)
{
    const int item = box->findData(value);
    ASSERT_GE(item, 0) << value;
    while (box->currentIndex() != item) {
        QTest::keyClick(box, box->currentIndex() < item ? Qt::Key_Down : Qt::Key_Up);
    }
}

/// A Transmit window, hidden, for an object of a saved project with an interface; the time is 100
/// s.
class TransmitTest : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object = dynamic_cast<ObjectTransmit*>(m_project.createObject(ObjectType::Transmit));
        m_object->addOutput(&m_interface);
    }
    void TearDown() override { delete m_dialog; }

    SendMsg& addLine(std::uint32_t id, std::int32_t rate = 0, std::int32_t running = 0)
    {
        m_object->lines().push_back(std::make_unique<SendMsg>());
        SendMsg& line = *m_object->lines().back();
        line.id = id;
        line.rate = rate;
        line.running = running;
        return line;
    }
    void open()
    {
        m_dialog = new gui::DialogTransmit(m_object, nullptr);
        m_table = m_dialog->findChild<gui::TransmitTable*>(QStringLiteral("transmitTable"));
        m_project.save(QString());
        ASSERT_FALSE(m_project.isEdited());
    }
    template <typename Widget = QWidget>
    Widget* find(const char* name) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    void click(const char* name) { QTest::mouseClick(find(name), Qt::LeftButton); }
    SendMsg& line(std::size_t index) { return *m_object->lines().at(index); }
    /// The payload cells of a row.
    QList<QLineEdit*> cells(int row) const
    {
        QList<QLineEdit*> found;
        for (QLineEdit* line : m_table->editor(row)->findChildren<QLineEdit*>()) {
            if (line->toolTip() == QStringLiteral("Message Payload")) {
                found.append(line);
            }
        }
        return found;
    }
    QWidget* buttonCell(int row) const
    {
        return m_table->cellWidget(row, gui::TransmitTable::TransmitColumn);
    }
    QPushButton* button(int row) const { return buttonCell(row)->findChild<QPushButton*>(); }
    QSpinBox* rateBox(int row) const { return buttonCell(row)->findChild<QSpinBox*>(); }
    void tick() { QMetaObject::invokeMethod(m_dialog.data(), "slotTimeout"); }
    /// Opens the window again, with the row in view selected.
    void select(int row, Qt::KeyboardModifiers keys = Qt::NoModifier)
    {
        m_dialog->show();
        const QRect place = m_table->visualItemRect(m_table->item(row, 0));
        QTest::mouseClick(m_table->viewport(), Qt::LeftButton, keys, place.center());
    }

    TestHome m_home;
    SettableClock m_clock{100.0};
    RecordingInterface m_interface;
    Project m_project{{ObjectTransmit::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    ObjectTransmit* m_object = nullptr;
    QPointer<gui::DialogTransmit> m_dialog;
    gui::TransmitTable* m_table = nullptr;
};

} // namespace zul::test
