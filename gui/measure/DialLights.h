#pragma once

#include "measure/LightLabels.h"

#include <QWidget>

#include <array>

class QGridLayout;
class WidgetLight;

namespace gui {

/// The discrete form of a dial: a light for each bit of the first eight bytes, with a small number
/// on it.
class DialLights : public QWidget
{
    Q_OBJECT

public:
    explicit DialLights(QWidget* parent = nullptr);

    void showFrame(const zul::MessageCan& frame);

private:
    void buildHeads(QGridLayout& grid);
    void buildLights(QGridLayout& grid);
    void showNumbers(int dataType);

    int m_dataType = noLightDataType;
    std::array<std::array<WidgetLight*, lightBits>, lightBytes> m_lights{}; // by byte and bit
};

} // namespace gui
