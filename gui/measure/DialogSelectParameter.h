#pragma once

#include "profile/ProfileParameter.h"

#include <QDialog>

class QCheckBox;
class QFormLayout;
class QLineEdit;
class WidgetSppEpp;

namespace gui {

class ColorSelect;
class QwtComboBox;
class QwtIdSelect;

/// Edits one parameter of a plot: which frame, which bytes, how it is read, how it is drawn. It has
/// no cancel: what the user changed counts when it closes.
class DialogSelectParameter : public QDialog
{
    Q_OBJECT

public:
    explicit DialogSelectParameter(ProfileParameter parameter, QWidget* parent = nullptr);

    const ProfileParameter& parameter() const { return m_parameter; }

private slots:
    void slotId(int id);
    void slotParameter(const ProfileParameter& para);
    void slotKind(int kind);
    void slotTexts();
    void slotDataType(int code);
    void slotPosition();
    void slotNumbers();
    void slotEndian(int endian);
    void slotColor(const QString& color);
    void slotShowSamples(bool on);
    void slotAutoScale(bool on);
    void slotClose();

private:
    /// Byte and bit of a position, and the strip that shows it.
    struct PositionRow
    {
        QwtComboBox* byte = nullptr;
        QwtComboBox* bit = nullptr;
        WidgetSppEpp* strip = nullptr;
    };

    void build();
    void buildWhere(QFormLayout& form);
    void buildHow(QFormLayout& form);
    void buildLook(QFormLayout& form);
    PositionRow buildPosition(QFormLayout& form, const char* label, const char* name);
    void connectControls();

    void refresh();
    void refreshDataTypes();
    void refreshPositions();
    void refreshNumbers();
    void refreshEnabled();
    void takeNaturalPosition();

    ProfileParameter m_parameter;
    bool m_updating = false;

    QwtIdSelect* m_id = nullptr;
    QwtComboBox* m_kind = nullptr;
    QLineEdit* m_name = nullptr;
    QLineEdit* m_unit = nullptr;
    QwtComboBox* m_dataType = nullptr;
    PositionRow m_start;
    PositionRow m_end;
    QLineEdit* m_min = nullptr;
    QLineEdit* m_max = nullptr;
    QLineEdit* m_lsb = nullptr;
    QwtComboBox* m_endian = nullptr;
    ColorSelect* m_color = nullptr;
    QCheckBox* m_showSamples = nullptr;
    QCheckBox* m_autoScale = nullptr;
    QLineEdit* m_yMin = nullptr;
    QLineEdit* m_yMax = nullptr;
    QLineEdit* m_scaleFactor = nullptr;
    QLineEdit* m_scaleOffset = nullptr;
};

} // namespace gui
