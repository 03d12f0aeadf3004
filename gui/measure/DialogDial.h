#pragma once

#include "gui/frame/DialogInput.h"
#include "measure/DialFeed.h"
#include "profile/ProfileParameter.h"

class ObjectDial;
class QCheckBox;
class QLineEdit;
class QPushButton;
class QSpinBox;
class QStackedWidget;
class WidgetDial;

namespace gui {

class DialLights;
class DialNumber;
class QwtComboBox;
class QwtIdSelect;
class QwtLineEdit;

/// Shows the live value of one identifier: as the lights of its bits, as a needle, or as digits.
class DialogDial : public DialogInput
{
    Q_OBJECT

public:
    /// `object` is null or outlives the window's pairing with it.
    DialogDial(ObjectDial* object, QWidget* parent);
    ~DialogDial() override;

    void setObject(Object* object) override;
    /// Another window opened this one for an identifier.
    void guiMessage(Message* message) override;
    void receive(MessageContainer& batch) override;
    void updateDialog() override;

protected:
    std::optional<Input> input() final;
    /// Name and unit of the value, not the name of the object.
    QString titleText() const override;

private slots:
    void slotId(int id);
    void slotParameter(const ProfileParameter& parameter);
    void slotDisplayType(int type);
    void slotDialProp(int state);
    void slotName(int index, const QString& name);
    void slotUnit(int index, const QString& unit);
    void slotDataType(int code);
    void slotPrecision(int precision);
    void slotMin(const QString& text);
    void slotMax(const QString& text);
    void slotColor();
    void slotEndianFormat(int endian);

private:
    void build();
    void buildSelections();
    void buildPages();
    QWidget* buildPanel();
    void connectSelections();
    void connectProperties();
    /// Whether the form shows a value, and not bits.
    bool showsValue() const;
    QColor color() const;
    void showSettings();
    void showProperties();
    void showPanel();
    void growToHint();
    void showFrame();
    /// What every change of a property ends with.
    void propertyChanged();

    ObjectDial* m_dial;
    DialFeed m_feed;

    QwtIdSelect* m_idSelect = nullptr;
    QwtComboBox* m_displayType = nullptr;
    QStackedWidget* m_pages = nullptr;
    DialLights* m_lights = nullptr;
    WidgetDial* m_needle = nullptr;
    DialNumber* m_number = nullptr;
    QCheckBox* m_showProperties = nullptr;
    QWidget* m_panel = nullptr;
    QwtLineEdit* m_name = nullptr;
    QwtLineEdit* m_unit = nullptr;
    QwtComboBox* m_dataType = nullptr;
    QSpinBox* m_precision = nullptr;
    QLineEdit* m_min = nullptr;
    QLineEdit* m_max = nullptr;
    QPushButton* m_color = nullptr;
    QwtComboBox* m_endian = nullptr;
};

} // namespace gui
