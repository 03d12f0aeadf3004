#pragma once

#include "gui/controls/QwtComboBox.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/InputDialogs.h"
#include "gui/frame/MessageBoxes.h"
#include "gui/frame/WidgetHeader.h"
#include "gui/node/DialogFunctionGen.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/Project.h"
#include "tests/support/ProbeObjects.h"
#include "tests/support/TestHome.h"

#include <QCheckBox>
#include <QDial>
#include <QDoubleSpinBox>
#include <QGridLayout>
#include <QLabel>
#include <QListWidget>
#include <QProgressBar>
#include <QPushButton>
#include <QSpinBox>
#include <QStackedWidget>
#include <QTabWidget>
#include <QTest>
#include <QTimer>

#include <gtest/gtest.h>

namespace zul::test {

/// An interface that writes down identifier and payload of what it is to send.
class GeneratorOutlet : public zul::test::ProbeInterface
{
public:
    void receive(MessageContainer& batch) override
    {
        ProbeInterface::receive(batch);
        destination = batch.srcDest();
        for (const auto& message : batch.messages()) {
            const auto& frame = *message_cast<MessageCan>(message.get());
            frames.push_back(std::to_string(frame.id()) + ":" +
                             QByteArray(reinterpret_cast<const char*>(&frame.msg()[0]),
                                        static_cast<int>(frame.byteCount()))
                                 .toHex()
                                 .toStdString());
        }
    }
    /// Distances from the base 1000 of the frames since the last call, as "+3 +0 ".
    std::string kinds()
    {
        std::string all;
        for (const std::string& frame : frames) {
            all += "+" + std::to_string(std::stoi(frame) - 1000) + " ";
        }
        frames.clear();
        return all;
    }

    std::vector<std::string> frames;
    std::string destination;
};

class FunctionGenWindow : public testing::Test
{
protected:
    void SetUp() override
    {
        m_project.load(m_home.file(QStringLiteral("none.zul")));
        m_object =
            dynamic_cast<ObjectFunctionGen*>(m_project.createObject(ObjectType::FunctionGen));
        m_object->addOutput(&m_outlet);
        m_object->generator() = {7, 1000, 2};
        open();
        m_project.save(QString());
    }
    void TearDown() override { delete m_dialog; }
    void open()
    {
        delete m_dialog;
        m_dialog = new gui::DialogFunctionGen(m_object, nullptr);
        m_dialog->show();
    }
    template <typename Widget>
    Widget* find(const char* name) const
    {
        return m_dialog->findChild<Widget*>(QLatin1String(name));
    }
    void click(const char* name) const { QTest::mouseClick(find<QWidget>(name), Qt::LeftButton); }
    QTabWidget* tabs() const { return find<QTabWidget>("channels"); }
    /// A control of the channel that is shown.
    template <typename Widget>
    Widget* control(const char* name) const
    {
        return tabs()->currentWidget()->findChild<Widget*>(QLatin1String(name));
    }
    static void choose(QComboBox* box, int steps, Qt::Key key = Qt::Key_Down)
    {
        for (int i = 0; i < steps; ++i) {
            QTest::keyClick(box, key);
        }
    }
    /// Types into a spin box, and ends with Return.
    static void type(QAbstractSpinBox* box, const char* text)
    {
        box->setFocus();
        box->selectAll();
        QTest::keyClicks(box, QLatin1String(text));
        QTest::keyClick(box, Qt::Key_Return);
    }
    void reply(const std::vector<std::uint8_t>& bytes, std::uint32_t id = 129) const
    {
        auto* frame = new MessageCan;
        frame->setId(id);
        frame->setByteCount(static_cast<std::uint32_t>(bytes.size()));
        for (std::size_t i = 0; i < bytes.size(); ++i) {
            frame->msg()[static_cast<std::int32_t>(i)] = bytes[i];
        }
        MessageContainer batch;
        batch.setSrcDest("CAN 1");
        batch.addMessage(SmartPtr<Message>(frame));
        m_dialog->receive(batch);
    }
    std::string status() const
    {
        const auto* label = find<QLabel>("flashStatus");
        return (label->text() + QLatin1Char(' ') +
                label->palette().color(label->backgroundRole()).name())
            .toStdString();
    }
    /// Which of the four buttons can be used.
    std::string buttons() const
    {
        std::string all;
        for (const char* name : {"setNodeId", "setBaseId", "setBaudrate", "flash"}) {
            all += find<QPushButton>(name)->isEnabled() ? "on " : "off ";
        }
        return all;
    }
    QTimer* timer(const char* name) const { return find<QTimer>(name); }
    void runOut(const char* name) const
    {
        QTimer* clock = timer(name);
        ASSERT_TRUE(clock->isActive());
        const int interval = clock->interval();
        clock->setInterval(0);
        ASSERT_TRUE(QTest::qWaitFor([clock] { return !clock->isActive(); }));
        clock->setInterval(interval);
    }
    /// Lets the whole sweep pass.
    void sweep() const
    {
        QTimer* clock = timer("searchTimer");
        clock->setInterval(0);
        constexpr int enough = 10'000; // turns; the sweep takes 256
        for (int i = 0; i < enough && clock->isActive(); ++i) {
            QApplication::processEvents();
        }
        ASSERT_FALSE(clock->isActive());
    }
    ObjectFunctionGen::GeneratorChannel& channel(std::size_t index = 0)
    {
        return m_object->channels()[index];
    }

    zul::test::TestHome m_home;
    Project m_project{{ObjectFunctionGen::typeInfo()}, m_home.file(QStringLiteral("default.zul"))};
    GeneratorOutlet m_outlet;
    ObjectFunctionGen* m_object = nullptr;
    gui::DialogFunctionGen* m_dialog = nullptr;
};

/// Texts and data of the items.
inline std::string items(const QComboBox* box)
{
    std::string all;
    for (int i = 0; i < box->count(); ++i) {
        all +=
            box->itemText(i).toStdString() + "=" + std::to_string(box->itemData(i).toInt()) + " ";
    }
    return all;
}

/// The text of the label in the row of a control.
inline std::string labelOf(QWidget* control)
{
    for (QGridLayout* grid : control->parentWidget()->findChildren<QGridLayout*>()) {
        const int index = grid->indexOf(control);
        if (index < 0) {
            continue;
        }
        int row = 0;
        int column = 0;
        int rows = 0;
        int columns = 0;
        grid->getItemPosition(index, &row, &column, &rows, &columns);
        const auto* label = qobject_cast<QLabel*>(grid->itemAtPosition(row, 0)->widget());
        return label != nullptr ? label->text().toStdString() : std::string();
    }
    return {};
}

} // namespace zul::test
