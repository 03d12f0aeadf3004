#pragma once

#include "node/StateLook.h"

#include <QLabel>

namespace gui {

/// A line that tells a state by text and colour.
class StateLabel : public QLabel
{
    Q_OBJECT

public:
    explicit StateLabel(QWidget* parent = nullptr);

    void showLook(const StateLook& look);
};

} // namespace gui
