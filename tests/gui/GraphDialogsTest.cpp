#include "gui/controls/QwtComboBox.h"
#include "gui/frame/ColorDialogs.h"
#include "gui/frame/QwtIdSelect.h"
#include "gui/measure/ColorSelect.h"
#include "gui/measure/DialogGraphSetup.h"
#include "gui/measure/DialogSelectParameter.h"
#include "gui/measure/WidgetSppEpp.h"
#include "project/ObjectGraph.h"

#include <QApplication>
#include <QCheckBox>
#include <QFrame>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <gmock/gmock.h>

// The dialogs of the oscilloscope.

namespace {

using gui::ColorDialogs;
using gui::ColorSelect;
using gui::DialogGraphSetup;
using gui::DialogSelectParameter;
using gui::QwtComboBox;
using testing::IsSupersetOf;

QString text(const char* latin)
{
    return QString::fromLatin1(latin);
}

std::vector<std::string> labelsOf(const QWidget& dialog)
{
    std::vector<std::string> found;
    for (const auto* label : dialog.findChildren<QLabel*>()) {
        found.push_back(label->text().toLatin1().toStdString());
    }
    return found;
}

void chooseColor(const ColorSelect& select, const char* color)
{
    ColorDialogs::setNextColor(*color != '\0' ? QColor(text(color)) : QColor());
    QTest::mouseClick(select.findChild<QPushButton*>(text("select")), Qt::LeftButton);
}

QColor swatchOf(const ColorSelect& select)
{
    return select.findChild<QFrame*>(text("swatch"))->palette().color(QPalette::Window);
}

/// Chooses the item with this text, as the user does.
void choose(QwtComboBox& selection, const char* item)
{
    const int index = selection.findText(text(item));
    ASSERT_GE(index, 0) << item;
    selection.setCurrentIndex(index);
    emit selection.activated(index);
}

class GraphSetup : public testing::Test
{
protected:
    GraphSetup()
    {
        m_dialog.setObject(&m_object);
        m_dialog.show();
    }
    template <typename Control>
    Control& find(const char* name) const
    {
        return *m_dialog.findChild<Control*>(text(name));
    }
    void click(const char* name) const
    {
        QTest::mouseClick(&find<QPushButton>(name), Qt::LeftButton);
    }
    void toggle(const char* name) const
    {
        QTest::mouseClick(&find<QCheckBox>(name), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    }

    ObjectGraph m_object;
    DialogGraphSetup m_dialog;
    QSignalSpy m_changes{&m_dialog, &DialogGraphSetup::signalChanged};
};

TEST_F(GraphSetup, HasItsTexts)
{
    EXPECT_EQ(m_dialog.windowTitle(), text("Oscilloscope Setup"));
    EXPECT_THAT(
        labelsOf(m_dialog),
        IsSupersetOf({"Background Color :", "Grid On/Color :", "Label Color :",
                      "Label Background :", "Cursor On/Mode :", "Legend :", "Y-Autoscale :"}));
    EXPECT_EQ(find<QCheckBox>("gridOn").text(), text("Grid On"));
    EXPECT_EQ(find<QCheckBox>("cursorOn").text(), text("Cursor On"));
    EXPECT_EQ(find<QCheckBox>("legendOn").text(), text("Legend On"));
    EXPECT_EQ(find<QComboBox>("cursorMode").itemText(0), text("Floating"));
    EXPECT_EQ(find<QComboBox>("cursorMode").itemText(1), text("Center"));
    EXPECT_EQ(find<QPushButton>("allOn").text(), text("All On"));
    EXPECT_EQ(find<QPushButton>("allOff").text(), text("All Off"));
    EXPECT_EQ(find<QPushButton>("close").text(), text("Close"));
    EXPECT_EQ(find<ColorSelect>("plotColor").findChild<QPushButton*>()->text(), text("Select"));
}

TEST_F(GraphSetup, ShowsTheObject)
{
    EXPECT_EQ(swatchOf(find<ColorSelect>("plotColor")), QColor(0, 0, 0));
    EXPECT_EQ(swatchOf(find<ColorSelect>("gridColor")), QColor(0xff, 0x66, 0x66));
    EXPECT_EQ(swatchOf(find<ColorSelect>("labelColor")), QColor(0, 0, 0));
    EXPECT_EQ(swatchOf(find<ColorSelect>("labelBackColor")), QColor(0xbb, 0xbb, 0xbb));
    EXPECT_TRUE(find<QCheckBox>("gridOn").isChecked());
    EXPECT_TRUE(find<QCheckBox>("cursorOn").isChecked());
    EXPECT_TRUE(find<QCheckBox>("legendOn").isChecked());
    EXPECT_EQ(find<QComboBox>("cursorMode").currentIndex(), 1);
    EXPECT_EQ(m_changes.count(), 0);
}

TEST_F(GraphSetup, ColorsGoIntoTheObject)
{
    chooseColor(find<ColorSelect>("plotColor"), "#010203");
    chooseColor(find<ColorSelect>("gridColor"), "#040506");
    chooseColor(find<ColorSelect>("labelColor"), "#070809");
    chooseColor(find<ColorSelect>("labelBackColor"), "#0a0b0c");
    EXPECT_EQ(m_object.graph().backgroundColor, text("#010203"));
    EXPECT_EQ(m_object.graph().gridColor, text("#040506"));
    EXPECT_EQ(m_object.graph().labelColor, text("#070809"));
    EXPECT_EQ(m_object.graph().labelBackColor, text("#0a0b0c"));
    EXPECT_EQ(swatchOf(find<ColorSelect>("plotColor")), QColor(1, 2, 3));
    EXPECT_EQ(m_changes.count(), 4);
}

TEST_F(GraphSetup, ACancelledChooserChangesNothing)
{
    chooseColor(find<ColorSelect>("gridColor"), "");
    EXPECT_EQ(m_object.graph().gridColor, text("#ff6666"));
    EXPECT_EQ(swatchOf(find<ColorSelect>("gridColor")), QColor(0xff, 0x66, 0x66));
    EXPECT_EQ(m_changes.count(), 0);
}

TEST_F(GraphSetup, SwitchesGoIntoTheObject)
{
    toggle("gridOn");
    toggle("cursorOn");
    toggle("legendOn");
    find<QComboBox>("cursorMode").setFocus();
    QTest::keyClick(&find<QComboBox>("cursorMode"), Qt::Key_Up);
    EXPECT_FALSE(m_object.graph().gridOn);
    EXPECT_FALSE(m_object.graph().cursorOn);
    EXPECT_FALSE(m_object.graph().legendOn);
    EXPECT_EQ(m_object.graph().cursorMode, 0);
    EXPECT_EQ(m_changes.count(), 4);
}

TEST_F(GraphSetup, AutoScaleGoesIntoAllParametersAtOnce)
{
    m_object.parameters().resize(3);
    click("allOn");
    for (const GraphParameter& row : m_object.parameters()) {
        EXPECT_TRUE(row.parameter.autoScale);
    }
    click("allOff");
    for (const GraphParameter& row : m_object.parameters()) {
        EXPECT_FALSE(row.parameter.autoScale);
    }
    EXPECT_EQ(m_changes.count(), 2);
}

TEST_F(GraphSetup, CloseHidesIt)
{
    click("close");
    EXPECT_FALSE(m_dialog.isVisible());
}

TEST_F(GraphSetup, WithoutAnObjectNothingIsEdited)
{
    m_dialog.setObject(nullptr);
    toggle("gridOn");
    click("allOn");
    chooseColor(find<ColorSelect>("plotColor"), "#010203");
    EXPECT_TRUE(m_object.graph().gridOn);
    EXPECT_EQ(m_changes.count(), 0);
}

class SelectParameter : public testing::Test
{
protected:
    void open(ParameterKind kind, std::uint32_t code)
    {
        m_parameter.parameterKind = kind;
        m_parameter.dtc = code;
        m_dialog = std::make_unique<DialogSelectParameter>(m_parameter);
        m_dialog->show();
    }
    template <typename Control>
    Control& find(const char* name) const
    {
        return *m_dialog->findChild<Control*>(text(name));
    }
    QwtComboBox& position(const char* toolTip) const
    {
        for (auto* selection : m_dialog->findChildren<QwtComboBox*>()) {
            if (selection->toolTip() == text(toolTip)) {
                return *selection;
            }
        }
        ADD_FAILURE() << toolTip;
        return *m_dialog->findChild<QwtComboBox*>();
    }
    QCheckBox& check(const char* wanted) const
    {
        for (auto* box : m_dialog->findChildren<QCheckBox*>()) {
            if (box->text() == text(wanted)) {
                return *box;
            }
        }
        ADD_FAILURE() << wanted;
        return *m_dialog->findChild<QCheckBox*>();
    }
    std::string shown() const
    {
        const auto textOf = [this](const char* toolTip) {
            return position(toolTip).currentText().toLatin1().toStdString();
        };
        return textOf("Start Position Byte") + '.' + textOf("Start Position Bit") + '/' +
               textOf("End Position Byte") + '.' + textOf("End Position Bit");
    }
    std::string enabled() const
    {
        std::string found;
        for (const char* toolTip : {"Start Position Byte", "Start Position Bit",
                                    "End Position Byte", "End Position Bit"}) {
            found += position(toolTip).isEnabled() ? '1' : '0';
        }
        return found;
    }
    void type(const char* name, const char* keys) const
    {
        auto& field = find<QLineEdit>(name);
        field.selectAll();
        QTest::keyClicks(&field, text(keys));
    }
    const ProfileParameter& parameter() const { return m_dialog->parameter(); }

    ProfileParameter m_parameter;
    std::unique_ptr<DialogSelectParameter> m_dialog;
};

TEST_F(SelectParameter, HasItsTexts)
{
    open(ParameterKind::Raw, 0);
    EXPECT_EQ(m_dialog->windowTitle(), text("Select Parameter"));
    EXPECT_TRUE(m_dialog->isModal());
    EXPECT_THAT(labelsOf(*m_dialog),
                IsSupersetOf({"Select Profile/Active Id :", "Definition type :", "Name/Unit :",
                              "Data Type :", "Start Byte/Bit :", "End Byte/Bit :", "Min/Max :",
                              "LSB/Endian :", "Color :", "Show Samples :", "Y-Autocale :",
                              "Y-Range :", "Scale Factor/Offset"}));
    auto& kind = find<QwtComboBox>("kind");
    ASSERT_EQ(kind.count(), 3);
    EXPECT_EQ(kind.itemText(0), text("ARINC 825"));
    EXPECT_EQ(kind.itemText(1), text("CANaerospace"));
    EXPECT_EQ(kind.itemText(2), text("User Defined"));
    EXPECT_EQ(find<QwtComboBox>("endian").itemText(0), text("Little Endian"));
    EXPECT_EQ(find<QwtComboBox>("endian").itemText(1), text("Big Endian"));
    check("Samples On");
    check("Autoscale On");
    QStringList strips;
    for (const auto* strip : m_dialog->findChildren<WidgetSppEpp*>()) {
        strips << strip->toolTip();
    }
    EXPECT_EQ(strips, QStringList({text("Start Position Payload"), text("End Position Payload")}));
}

TEST_F(SelectParameter, ShowsTheParameter)
{
    m_parameter.id = 1234;
    m_parameter.nme = text("Speed");
    m_parameter.pun = text("kt");
    m_parameter.min = -1.5;
    m_parameter.lsb = 0.25;
    m_parameter.yMin = 0.1;
    m_parameter.yMax = 1e6;
    m_parameter.scaleFactor = 2.0;
    m_parameter.scaleOffset = -4.0;
    m_parameter.endian = 0;
    m_parameter.showSamples = true;
    open(ParameterKind::Raw, 14);
    EXPECT_EQ(m_dialog->findChild<gui::QwtIdSelect*>()->id(), 1234);
    EXPECT_EQ(find<QLineEdit>("name").text(), text("Speed"));
    EXPECT_EQ(find<QLineEdit>("unit").text(), text("kt"));
    EXPECT_EQ(find<QwtComboBox>("dataType").currentText(), text("Float 0..3"));
    EXPECT_EQ(find<QLineEdit>("min").text(), text("-1.500000"));
    EXPECT_EQ(find<QLineEdit>("max").text(), text("1.000000"));
    EXPECT_EQ(find<QLineEdit>("lsb").text(), text("0.250000"));
    EXPECT_EQ(find<QLineEdit>("yMin").text(), text("0.1"));
    EXPECT_EQ(find<QLineEdit>("yMax").text(), text("1e+06"));
    EXPECT_EQ(find<QLineEdit>("scaleFactor").text(), text("2.000000"));
    EXPECT_EQ(find<QLineEdit>("scaleOffset").text(), text("-4.000000"));
    EXPECT_EQ(find<QwtComboBox>("endian").currentText(), text("Little Endian"));
    EXPECT_TRUE(check("Samples On").isChecked());
    EXPECT_EQ(swatchOf(*m_dialog->findChild<ColorSelect*>()), QColor(0xff, 0x88, 0x00));
}

TEST_F(SelectParameter, FillingItChangesNothing)
{
    m_parameter.id = 0xFFFFFFFF; // beyond what the field holds
    m_parameter.sppByte = 99;
    m_parameter.yMin = 0.123456789;
    m_parameter.min = 0.123456789;
    m_parameter.endian = 7;
    open(ParameterKind::Arinc825, 5);
    EXPECT_EQ(parameter().id, 0xFFFFFFFFU);
    EXPECT_EQ(parameter().sppByte, 99U);
    EXPECT_EQ(parameter().yMin, 0.123456789);
    EXPECT_EQ(parameter().min, 0.123456789);
    EXPECT_EQ(parameter().endian, 7U);
    EXPECT_EQ(parameter().dtc, 5U);
}

TEST_F(SelectParameter, EnablesWhatTheKindUses)
{
    const auto enabledFields = [this] {
        std::string found;
        for (const char* name : {"min", "max", "lsb"}) {
            found += find<QLineEdit>(name).isEnabled() ? '1' : '0';
        }
        return found + (find<QwtComboBox>("endian").isEnabled() ? '1' : '0');
    };
    open(ParameterKind::Arinc825, 9);
    EXPECT_EQ(enabledFields(), "1100");
    choose(find<QwtComboBox>("kind"), "CANaerospace");
    EXPECT_EQ(parameter().parameterKind, ParameterKind::CanAerospace);
    EXPECT_EQ(enabledFields(), "0000");
    choose(find<QwtComboBox>("kind"), "User Defined");
    EXPECT_EQ(parameter().parameterKind, ParameterKind::Raw);
    EXPECT_EQ(enabledFields(), "0011");
}

TEST_F(SelectParameter, KindFillsTheDataTypes)
{
    open(ParameterKind::Arinc825, 9);
    auto& types = find<QwtComboBox>("dataType");
    EXPECT_EQ(types.count(), 16);
    EXPECT_EQ(types.currentText(), text("FLOAT"));
    choose(find<QwtComboBox>("kind"), "CANaerospace");
    EXPECT_EQ(types.count(), 30);
    EXPECT_EQ(types.currentText(), text("CHAR")); // of the same code
    EXPECT_EQ(shown(), "4.0/4.7");
    choose(types, "ACHAR_3");
    choose(find<QwtComboBox>("kind"), "User Defined");
    EXPECT_EQ(types.count(), 18);
    EXPECT_EQ(types.currentText(), text("Double 0..7")); // there is no such code
    EXPECT_EQ(parameter().dtc, 17U);
    EXPECT_EQ(shown(), "7.0/0.7");
}

TEST_F(SelectParameter, DataTypeOfArinc825SetsThePositions)
{
    open(ParameterKind::Arinc825, 9);
    auto& types = find<QwtComboBox>("dataType");
    choose(types, "UCHAR");
    EXPECT_EQ(shown(), "0.0/0.7");
    EXPECT_EQ(enabled(), "1000");
    choose(types, "SHORT");
    EXPECT_EQ(shown(), "1.0/0.7");
    EXPECT_EQ(enabled(), "1000");
    EXPECT_EQ(position("Start Position Byte").count(), 4);
    choose(position("Start Position Byte"), "5");
    EXPECT_EQ(shown(), "5.0/4.7");
    EXPECT_EQ(parameter().eppByte, 4U);
    choose(types, "FLOAT");
    EXPECT_EQ(shown(), "3.0/0.7");
    choose(position("Start Position Byte"), "7");
    EXPECT_EQ(shown(), "7.0/4.7");
    choose(types, "DOUBLE");
    EXPECT_EQ(shown(), "7.0/0.7");
    EXPECT_EQ(enabled(), "0000");
    choose(types, "BOOL");
    EXPECT_EQ(shown(), "0.0/0.0");
    EXPECT_EQ(enabled(), "1100");
    choose(position("Start Position Bit"), "6");
    choose(position("Start Position Byte"), "3");
    EXPECT_EQ(shown(), "3.6/3.6");
    choose(types, "BCD");
    EXPECT_EQ(shown(), "0.0/0.3");
    choose(position("Start Position Bit"), "4");
    EXPECT_EQ(shown(), "0.4/0.7");
    choose(types, "ENUM");
    EXPECT_EQ(shown(), "0.0/0.0");
    EXPECT_EQ(enabled(), "1111");
    choose(position("End Position Bit"), "3");
    EXPECT_EQ(shown(), "0.0/0.3");
    choose(types, "NODATA");
    EXPECT_EQ(shown(), "./.");
    EXPECT_EQ(enabled(), "0000");
    EXPECT_EQ(parameter().eppBit, 0U);
}

TEST_F(SelectParameter, PositionsOfOtherKindsFollowFromTheDataType)
{
    open(ParameterKind::Raw, 0);
    EXPECT_EQ(enabled(), "0000");
    choose(find<QwtComboBox>("dataType"), "Short 4..5");
    EXPECT_EQ(shown(), "5.0/4.7");
    EXPECT_EQ(enabled(), "0000");
    EXPECT_EQ(position("Start Position Byte").count(), 8);
    choose(find<QwtComboBox>("kind"), "CANaerospace");
    choose(find<QwtComboBox>("dataType"), "SHORT");
    EXPECT_EQ(shown(), "5.0/4.7");
    choose(find<QwtComboBox>("dataType"), "CHAR_3");
    EXPECT_EQ(shown(), "6.0/4.7");
    EXPECT_EQ(enabled(), "0000");
}

TEST_F(SelectParameter, TypedNumbersAndTextsGoIntoTheParameter)
{
    open(ParameterKind::Raw, 0);
    type("name", "Speed");
    type("unit", "kt");
    type("lsb", "0.5");
    type("yMin", "-10");
    type("yMax", "1e3");
    type("scaleFactor", "2.5");
    type("scaleOffset", " 7 ");
    EXPECT_EQ(parameter().nme, text("Speed"));
    EXPECT_EQ(parameter().pun, text("kt"));
    EXPECT_EQ(parameter().lsb, 0.5);
    EXPECT_EQ(parameter().yMin, -10.0);
    EXPECT_EQ(parameter().yMax, 1000.0);
    EXPECT_EQ(parameter().scaleFactor, 2.5);
    EXPECT_EQ(parameter().scaleOffset, 7.0);
}

TEST_F(SelectParameter, ATextThatIsNoNumberIsZero)
{
    open(ParameterKind::Arinc825, 9);
    for (const char* typed : {"abc", "1,5", "nan", "inf", "1e999", "-"}) {
        type("max", "5");
        EXPECT_EQ(parameter().max, 5.0);
        type("max", typed);
        EXPECT_EQ(parameter().max, 0.0) << typed;
    }
}

TEST_F(SelectParameter, YRangeIsDisabledWhileAutoScaleIsOn)
{
    open(ParameterKind::Raw, 0);
    EXPECT_TRUE(find<QLineEdit>("yMin").isEnabled());
    QTest::mouseClick(&check("Autoscale On"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    EXPECT_TRUE(parameter().autoScale);
    EXPECT_FALSE(find<QLineEdit>("yMin").isEnabled());
    EXPECT_FALSE(find<QLineEdit>("yMax").isEnabled());
    QTest::mouseClick(&check("Autoscale On"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    EXPECT_TRUE(find<QLineEdit>("yMax").isEnabled());
    QTest::mouseClick(&check("Samples On"), Qt::LeftButton, Qt::NoModifier, QPoint(8, 8));
    EXPECT_TRUE(parameter().showSamples);
}

TEST_F(SelectParameter, ColorAndByteOrderGoIntoTheParameter)
{
    open(ParameterKind::Raw, 0);
    const auto& color = *m_dialog->findChild<ColorSelect*>();
    chooseColor(color, "#010203");
    EXPECT_EQ(parameter().color, text("#010203"));
    chooseColor(color, "");
    EXPECT_EQ(parameter().color, text("#010203"));
    choose(find<QwtComboBox>("endian"), "Little Endian");
    EXPECT_EQ(parameter().endian, 0U);
}

TEST_F(SelectParameter, ATypedIdentifierGoesIntoTheParameter)
{
    open(ParameterKind::Raw, 0);
    auto* id = m_dialog->findChild<gui::QwtIdSelect*>()->findChild<QSpinBox*>();
    id->setValue(77);
    EXPECT_EQ(parameter().id, 77U);
    EXPECT_EQ(parameter().parameterKind, ParameterKind::Raw);
}

TEST_F(SelectParameter, AChosenParameterReplacesAllButTheColor)
{
    m_parameter.color = text("#010203");
    open(ParameterKind::Raw, 0);
    ProfileParameter chosen;
    chosen.parameterKind = ParameterKind::Arinc825;
    chosen.id = 99;
    chosen.nme = text("Altitude");
    chosen.dtc = 9;
    chosen.sppByte = 7;
    chosen.eppByte = 4;
    chosen.eppBit = 7;
    chosen.max = 5000.0;
    chosen.color = text("#ffffff");
    emit m_dialog->findChild<gui::QwtIdSelect*>()->signalParameter(chosen);
    EXPECT_EQ(parameter().id, 99U);
    EXPECT_EQ(parameter().nme, text("Altitude"));
    EXPECT_EQ(parameter().max, 5000.0);
    EXPECT_EQ(parameter().color, text("#010203"));
    EXPECT_EQ(find<QLineEdit>("name").text(), text("Altitude"));
    EXPECT_EQ(find<QwtComboBox>("dataType").currentText(), text("FLOAT"));
    EXPECT_EQ(shown(), "7.0/4.7");
}

TEST_F(SelectParameter, CloseEndsIt)
{
    open(ParameterKind::Raw, 0);
    QTest::mouseClick(&find<QPushButton>("close"), Qt::LeftButton);
    EXPECT_FALSE(m_dialog->isVisible());
}

TEST(WidgetSppEpp, DrawsGreenCellsForTheParameter)
{
    ProfileParameter parameter;
    parameter.sppByte = 1;
    parameter.eppByte = 1;
    parameter.eppBit = 3;
    WidgetSppEpp strip;
    EXPECT_EQ(strip.minimumWidth(), 230);
    EXPECT_EQ(strip.minimumHeight(), 4);
    EXPECT_EQ(strip.maximumHeight(), 4);
    strip.setParameter(parameter);
    strip.resize(230, 4);
    const QImage picture = strip.grab().toImage();
    for (int cell = 0; cell < 64; ++cell) {
        const int x = cell * 3 + cell / 8 * 5;
        const QColor wanted = cell >= 12 && cell <= 15 ? QColor(0, 180, 0) : QColor(180, 180, 180);
        EXPECT_EQ(picture.pixelColor(x, 0), wanted) << cell;
        EXPECT_EQ(picture.pixelColor(x + 1, 3), wanted) << cell;
        EXPECT_NE(picture.pixelColor(x + 2, 0), QColor(0, 180, 0)) << cell;
    }
}

} // namespace
