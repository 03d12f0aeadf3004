#include "gui/frame/FileDialogs.h"

#include <QFileDialog>

#include <optional>

namespace gui {

namespace {

struct State
{
    std::optional<QString> nextFileName;
    QString lastTitle;
    QString lastFilter;
    QString lastPath;
};

State& state()
{
    static State instance;
    return instance;
}

template <typename Chooser>
QString choose(const QString& title, const QString& filter, const QString& path, Chooser chooser)
{
    state().lastTitle = title;
    state().lastFilter = filter;
    state().lastPath = path;
    if (state().nextFileName) {
        QString answer = *state().nextFileName;
        state().nextFileName.reset();
        return answer;
    }
    return chooser();
}

} // namespace

QString FileDialogs::openFile(QWidget* parent, const QString& title, const QString& filter,
                              const QString& path)
{
    return choose(title, filter, path,
                  [&] { return QFileDialog::getOpenFileName(parent, title, path, filter); });
}

QString FileDialogs::saveFile(QWidget* parent, const QString& title, const QString& filter,
                              const QString& defaultSuffix, const QString& path)
{
    return choose(title, filter, path, [&] {
        // The static chooser knows no suffix: it would ask about one name, and another be written.
        QFileDialog dialog(parent, title, QString(), filter);
        dialog.setAcceptMode(QFileDialog::AcceptSave);
        dialog.setFileMode(QFileDialog::AnyFile);
        dialog.setDefaultSuffix(defaultSuffix);
        if (!path.isEmpty()) {
            dialog.selectFile(path);
        }
        return dialog.exec() == QDialog::Accepted ? dialog.selectedFiles().value(0) : QString();
    });
}

void FileDialogs::setNextFileName(const QString& path)
{
    state().nextFileName = path;
}

QString FileDialogs::lastTitle()
{
    return state().lastTitle;
}

QString FileDialogs::lastFilter()
{
    return state().lastFilter;
}

QString FileDialogs::lastPath()
{
    return state().lastPath;
}

} // namespace gui
