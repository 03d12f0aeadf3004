#pragma once

#include "project/ObjectFunctionGen.h"

#include <QWidget>

class QCheckBox;
class QDial;
class QDoubleSpinBox;
class QGridLayout;
class QSpinBox;

namespace gui {

class QwtComboBox;

/// The settings of one channel of a function generator. It only shows; what a control does is its
/// owner's, who connects them.
class GeneratorPage : public QWidget
{
    Q_OBJECT

public:
    /// A number by range, by dial and by its digits.
    struct NumberRow
    {
        QwtComboBox* range = nullptr;
        QDial* dial = nullptr;
        QDoubleSpinBox* number = nullptr;
    };

    struct Controls
    {
        QCheckBox* active = nullptr;
        QwtComboBox* waveform = nullptr;
        QSpinBox* canId = nullptr;
        QwtComboBox* dataType = nullptr;
        QSpinBox* separation = nullptr;
        NumberRow frequency;
        NumberRow amplitude;
        NumberRow offset;
    };

    explicit GeneratorPage(QWidget* parent = nullptr);

    const Controls& controls() const { return m_controls; }
    void showChannel(const ObjectFunctionGen::GeneratorChannel& channel) const;

private:
    struct NumberRange
    {
        const char* label;
        const char* name;
        const char* suffix;
        std::size_t ranges;
        int dialMinimum;
        int dialMaximum;
        double minimum;
        double maximum;
    };

    void addRow(QGridLayout& grid, const char* label, QWidget* control);
    NumberRow addNumberRow(QGridLayout& grid, const NumberRange& range);
    void buildSettings(QGridLayout& grid);

    Controls m_controls;
};

} // namespace gui
