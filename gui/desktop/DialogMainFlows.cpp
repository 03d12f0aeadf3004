#include "core/Kernel.h"
#include "core/SettingsStore.h"
#include "gui/desktop/DialogAbout.h"
#include "gui/desktop/DialogHelp.h"
#include "gui/desktop/DialogMain.h"
#include "gui/desktop/DialogPreferences.h"
#include "gui/desktop/DialogProject.h"
#include "gui/desktop/WindowDesk.h"
#include "gui/editor/DialogProfileEditor825_3.h"
#include "gui/frame/FileDialogs.h"
#include "gui/frame/MessageBoxes.h"

#include <QAction>
#include <QApplication>

// What the main window does with whole projects: new, open, save, quit.

namespace gui {

namespace {

const QString fileFilter = QStringLiteral("ZORB File (*.zul);;All Files (*.*)");
const QString warningTitle = QLatin1String(MessageBoxes::warningTitle);
const QString defaultName = QStringLiteral("default.zul");
const QString suffix = QStringLiteral(".zul");

// Comes to the front, also if it was shown already.
void bringUp(QWidget& window)
{
    window.show();
    window.raise();
    window.activateWindow();
}

QString lastSection(const QString& path)
{
    return path.mid(path.lastIndexOf(QLatin1Char('/')) + 1);
}

} // namespace

void DialogMain::dispatch(MainAction id)
{
    switch (id) {
    case MainAction::New:
        newProject();
        break;
    case MainAction::Open:
        openProject();
        break;
    case MainAction::Save:
        saveProject();
        break;
    case MainAction::SaveAs:
        saveProjectAs();
        break;
    case MainAction::Quit:
        quit();
        break;
    case MainAction::About:
        bringUp(*m_about);
        break;
    case MainAction::Help:
        bringUp(*m_help);
        break;
    case MainAction::Preferences:
        bringUp(*m_preferences);
        break;
    case MainAction::ProfileEditor:
        bringUp(*m_profileEditor);
        break;
    default:
        break; // the window actions are connected to the MDI area; others do nothing
    }
}

void DialogMain::newProject()
{
    if (!askToSave()) {
        return;
    }
    m_heartbeat.stop();
    m_desk->forceCloseAll();
    m_projectPanel->setProject(nullptr);
    m_project.clear();
    showReplacedProject();
}

void DialogMain::openProject()
{
    if (!askToSave()) {
        return;
    }
    m_heartbeat.stop();
    const QString path = FileDialogs::openFile(this, QStringLiteral("Open Project"), fileFilter);
    if (!path.isEmpty()) {
        m_desk->forceCloseAll();
        m_projectPanel->setProject(nullptr); // it shows objects that are about to go
        const bool loaded = m_project.load(path);
        m_recentFiles.add(path);
        if (!loaded) {
            warn(QStringLiteral("Loading project failed !"));
        }
    }
    // Deliberate: also after a cancelled dialog, which brings the windows back as they were marked
    // in the file.
    openProjectWindows();
    showReplacedProject();
}

// What is being typed counts, as if the field had been left.
void DialogMain::commitEntry()
{
    if (QWidget* field = QApplication::focusWidget()) {
        field->clearFocus();
        field->setFocus();
    }
}

void DialogMain::saveProject()
{
    commitEntry();
    storeGeometry();
    if (m_project.fileName().isEmpty()) {
        saveProjectAs();
        return;
    }
    if (!m_project.save(QString())) {
        warn(QStringLiteral("Saving project failed !"));
    }
    updateTitle();
}

void DialogMain::saveProjectAs()
{
    commitEntry();
    storeGeometry();
    QString path =
        FileDialogs::saveFile(this, QStringLiteral("Save Project"), fileFilter, suffix.mid(1));
    if (path.isEmpty()) {
        return;
    }
    if (!lastSection(path).contains(QLatin1Char('.'))) {
        path += suffix;
    }
    m_recentFiles.add(path);
    if (!m_project.save(path)) {
        warn(QStringLiteral("Saving project failed !"));
    }
    updateTitle();
}

void DialogMain::quit()
{
    if (quitCheck()) {
        m_heartbeat.stop();
        close();
    }
}

bool DialogMain::askToSave()
{
    commitEntry();
    if (!m_project.isEdited()) {
        return true;
    }
    const auto answer =
        MessageBoxes::ask(this, QMessageBox::Warning, warningTitle,
                          QStringLiteral("Current Project not saved !\nDo you want to save it ?"),
                          {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel});
    if (answer == QMessageBox::Yes) {
        saveProject();
    }
    return answer != QMessageBox::Cancel;
}

bool DialogMain::quitCheck()
{
    commitEntry();
    if (m_profileEditor->isVisible() && !m_profileEditor->askToSave()) {
        return false;
    }
    if (m_project.isEdited() && lastSection(m_project.fileName()) != defaultName && !askToSave()) {
        return false;
    }
    storeGeometry();
    // Whatever was answered: the next start resumes the last state.
    m_project.save(Kernel::instance().home() + defaultName);
    SettingsStore::instance().save();
    // Closing checks once more; what the user does not want to save is not asked for again.
    m_profileEditor->hide();
    return true;
}

void DialogMain::slotMenuRecent(QAction* action)
{
    const QString path = action->data().toString();
    m_heartbeat.stop();
    m_desk->deleteAll();
    m_projectPanel->setProject(nullptr);
    loadProject(path);
    openProjectWindows();
    showReplacedProject();
}

void DialogMain::loadProject(const QString& path)
{
    if (m_project.load(path)) {
        m_recentFiles.add(path);
    } else {
        warn(QStringLiteral("Loading project failed !"));
    }
}

void DialogMain::warn(const QString& text)
{
    MessageBoxes::ask(this, QMessageBox::Critical, warningTitle, text, {QMessageBox::Ok});
}

} // namespace gui
