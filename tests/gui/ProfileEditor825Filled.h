#pragma once

#include "tests/gui/ProfileEditor825Fixture.h"

#include <QCheckBox>
#include <QPlainTextEdit>

#include <map>
#include <string>

namespace zul::test {

/// Of the position fields of a reference, counted from 1: off the default, and at most 7.
inline int positionDigit(int number)
{
    return number < 8 ? number : 5;
}

/// What every control of a page shows, by its name.
using Shown = std::map<std::string, std::string>;

inline Shown shownOn(const gui::EditorForm& page)
{
    Shown shown;
    for (const QWidget* control : page.findChildren<QWidget*>()) {
        const std::string name = control->objectName().toStdString();
        if (const auto* line = qobject_cast<const QLineEdit*>(control)) {
            shown[name] = line->text().toStdString();
        } else if (const auto* text = qobject_cast<const QPlainTextEdit*>(control)) {
            shown[name] = text->toPlainText().toStdString();
        } else if (const auto* number = qobject_cast<const QSpinBox*>(control)) {
            shown[name] = number->text().toStdString();
        } else if (const auto* box = qobject_cast<const QComboBox*>(control)) {
            shown[name] = box->currentText().toStdString();
        } else if (const auto* check = qobject_cast<const QCheckBox*>(control)) {
            shown[name] = check->isChecked() ? "yes" : "no";
        }
    }
    return shown;
}

/// The editor of LRU documents, and hands that fill its pages: every field is off its default.
class ProfileEditor825Filled : public ProfileEditor825Test
{
protected:
    void fillHeaderAndLru() const
    {
        select({"Profile Header"});
        type("headerId", "id \"1\"");
        type("headerName", "Pump & <Valve>");
        type("headerMajor", "1");
        type("headerMinor", "2");
        type("headerVersion", "20261122");
        type("headerComment", "first");
        QTest::keyClick(&find<QWidget>("headerComment"), Qt::Key_Return);
        QTest::keyClicks(&find<QWidget>("headerComment"), QStringLiteral("second"));
        remember();
        select({"LRU"});
        type("lruName", "Pump;1");
        type("lruNodeId", "N-7");
        type("lruNodeAddress", "0x10");
        type("lruComment", "about the unit");
        remember();
    }

    void fillInterface() const
    {
        addTo({"LRU", "CAN Interfaces"});
        type("ifcName", "can1");
        choose("ifcBitrate", -1);
        choose("ifcRci", 2);
        type("ifcComment", "left");
        type("ifcTimeQuantum", "16");
        type("ifcResync", "2");
        type("ifcSyncSeg", "1");
        type("ifcPropSeg", "7");
        type("ifcPhaseSeg1", "5");
        type("ifcPhaseSeg2", "3");
        choose("ifcSamplingPoint", 1);
        remember();
    }

    void fillParameter() const
    {
        addTo({"Parameter List"});
        type("parameterName", "Speed");
        type("parameterPua", "m/s");
        choose("parameterDtn", 9);
        type("parameterMin", "-2.5");
        type("parameterMax", "1000000");
        type("parameterResolution", "0.125");
        type("parameterOffset", "-4");
        type("parameterNotes", "note");
        type("parameterComment", "comment");
        choose("parameterFid", 20);
        remember();
        click("addEnum");
        type("enumKey", "off");
        type("enumValue", "-1");
        remember();
    }

    void fillMessage(const char* name) const
    {
        addTo({"LRU", "Communication", name});
        type("messageName", "Status");
        choose("messageIdType", 3);
        choose("messageIdLength", 1);
        choose("messageLcc", 6);
        choose("messageFid", 5);
        check("messagePvt");
        check("messageLcl");
        check("messageFsb");
        type("messageDoc", "16384");
        type("messageTxp", "12");
        type("messageLatency", "10000");
        type("messagePort", "7");
        type("messageId", "2047");
        choose("messageFuncStatus", 2);
        remember();
        addTo({"LRU", "Communication", name, "Message Status", "Interfaces"});
        choose("assignmentName", 1);
        choose("assignmentRci", 3);
        remember();
        select({"LRU", "Communication", name, "Message Status", "Data Field"});
        type("dataFieldName", "field");
        type("dataFieldPayload", "raw");
        type("dataFieldDlc", "8");
        check("dataFieldIntegrity");
        remember();
        add();
        choose("referenceName", 1);
        int number = 0;
        for (const char* control : {"sppByte", "sppBit", "eppByte", "eppBit", "pvsSppByte",
                                    "pvsSppBit", "pvsEppByte", "pvsEppBit"}) {
            type(control, QByteArray::number(positionDigit(++number)).constData());
        }
        remember();
    }

    /// What the page showed when it had been filled, by its title.
    const Shown& entered() const { return m_entered.at(pageTitle()); }

private:
    void remember() const { m_entered[pageTitle()] = shownOn(*page()); }

    mutable std::map<QString, Shown> m_entered;
};

} // namespace zul::test
