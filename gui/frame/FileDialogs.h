#pragma once

#include <QString>

class QWidget;

namespace gui {

/// The program's file choosers, all through here, so that tests can answer them. Each returns the
/// chosen path, or an empty string if the user cancelled.
class FileDialogs
{
public:
    /// Starts at `path`, which may be a file; at the working directory if it is empty.
    static QString openFile(QWidget* parent, const QString& title, const QString& filter,
                            const QString& path = QString());
    /// A name without a point gets `defaultSuffix`. Asks before an existing file is chosen. Offers
    /// the file `path`, if there is one given.
    static QString saveFile(QWidget* parent, const QString& title, const QString& filter,
                            const QString& defaultSuffix, const QString& path = QString());

    /// An existing directory; starts at `path`.
    static QString directory(QWidget* parent, const QString& title, const QString& path);

    /// The next chooser shows nothing and returns this; for tests.
    static void setNextFileName(const QString& path);
    /// Title, filter and first path of the last chooser; for tests.
    static QString lastTitle();
    static QString lastFilter();
    static QString lastPath();
};

} // namespace gui
