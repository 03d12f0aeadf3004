#pragma once

#include <QColor>

class QWidget;

namespace gui {

/// The program's colour chooser, always through here, so that tests can answer it.
class ColorDialogs
{
public:
    /// Lets the user choose, starting at `initial`; an invalid colour if the user cancelled.
    static QColor choose(QWidget* parent, const QColor& initial);

    /// The next chooser shows nothing and returns this; for tests.
    static void setNextColor(const QColor& color);
};

} // namespace gui
