#pragma once

#include <QString>

class QWidget;

namespace gui {

/// The program's file choosers, all through here, so that tests can answer them. Each returns the
/// chosen path, or an empty string if the user cancelled.
class FileDialogs
{
public:
    static QString openFile(QWidget* parent, const QString& title, const QString& filter);
    /// Asks before an existing file is chosen.
    static QString saveFile(QWidget* parent, const QString& title, const QString& filter);

    /// The next chooser shows nothing and returns this; for tests.
    static void setNextFileName(const QString& path);
    /// Title and filter of the last chooser; for tests.
    static QString lastTitle();
    static QString lastFilter();
};

} // namespace gui
