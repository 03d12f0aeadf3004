#pragma once

#include <QString>

class QWidget;

namespace gui {

/// The program's colour chooser, all through here, so that tests can answer it.
class ColorDialogs
{
public:
    /// Starts with `color`; gives the name of the chosen one, or an empty string if the user
    /// cancelled.
    static QString choose(QWidget* parent, const QString& color);

    /// The next chooser shows nothing and gives this; an empty one cancels. For tests.
    static void setNextColor(const QString& color);
};

} // namespace gui
