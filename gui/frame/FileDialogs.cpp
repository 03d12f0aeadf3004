#include "gui/frame/FileDialogs.h"

#include <QFileDialog>
#include <QFileInfo>
#include <QPointer>

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

// The chosen path. The dialog is on the heap: its parent may go, with all its children, while it is
// open.
QString run(QFileDialog* dialog, const QString& path)
{
    if (QFileInfo(path).isDir()) {
        dialog->setDirectory(path);
    } else if (!path.isEmpty()) {
        dialog->selectFile(path);
    }
    const QPointer<QFileDialog> guard(dialog);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    if (guard.isNull()) {
        return {};
    }
    QString chosen = isAccepted ? dialog->selectedFiles().value(0) : QString();
    delete dialog;
    return chosen;
}

} // namespace

QString FileDialogs::openFile(QWidget* parent, const QString& title, const QString& filter,
                              const QString& path)
{
    return choose(title, filter, path, [&] {
        auto* dialog = new QFileDialog(parent, title, QString(), filter);
        dialog->setFileMode(QFileDialog::ExistingFile);
        return run(dialog, path);
    });
}

QString FileDialogs::saveFile(QWidget* parent, const QString& title, const QString& filter,
                              const QString& defaultSuffix, const QString& path)
{
    return choose(title, filter, path, [&] {
        // The static chooser knows no suffix: it would ask about one name, and another be written.
        auto* dialog = new QFileDialog(parent, title, QString(), filter);
        dialog->setAcceptMode(QFileDialog::AcceptSave);
        dialog->setFileMode(QFileDialog::AnyFile);
        dialog->setDefaultSuffix(defaultSuffix);
        return run(dialog, path);
    });
}

QString FileDialogs::directory(QWidget* parent, const QString& title, const QString& path)
{
    return choose(title, QString(), path, [&] {
        auto* dialog = new QFileDialog(parent, title);
        dialog->setFileMode(QFileDialog::Directory);
        dialog->setOption(QFileDialog::ShowDirsOnly);
        return run(dialog, path);
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
