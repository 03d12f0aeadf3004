#include "gui/frame/DialogBase.h"

#include "core/Settings.h"
#include "core/SettingsStore.h"
#include "gui/frame/GuiRequests.h"
#include "gui/frame/MessageBoxes.h"
#include "project/Object.h"
#include "project/Project.h"

#include <QCloseEvent>

#include <utility>

namespace gui {

namespace {

using namespace zul::setting::close_policy;

constexpr int noObject = -1;

} // namespace

DialogBase::DialogBase(Object* object, QWidget* parent)
    : QWidget(parent), m_mainWindow(parent), m_object(object)
{
    setAttribute(Qt::WA_DeleteOnClose);
    if (m_object != nullptr) {
        m_object->setDialog(this);
    }
}

DialogBase::~DialogBase()
{
    // Controls that are hidden on their way out tell what was half typed into them; the derived
    // class that would hear it has gone.
    for (QObject* child : findChildren<QObject*>()) {
        disconnect(child, nullptr, this, nullptr);
    }
    detach();
}

void DialogBase::setObject(Object* object)
{
    m_object = object;
}

void DialogBase::guiMessage(Message*) {}

void DialogBase::receive(MessageContainer&) {}

void DialogBase::send(MessageContainer& batch)
{
    if (m_object != nullptr) {
        m_object->send(batch);
    }
}

void DialogBase::updateDialog() {}

void DialogBase::forceClose()
{
    m_forceClose = true;
}

void DialogBase::setName(const QString& name)
{
    m_name = name;
    refreshTitle();
}

void DialogBase::setTypeTitle(const QString& typeTitle)
{
    m_typeTitle = typeTitle;
    refreshTitle();
}

QString DialogBase::titleText() const
{
    return m_name;
}

void DialogBase::refreshTitle()
{
    setWindowTitle(titleText());
}

void DialogBase::guiRequest(std::unique_ptr<Message> request)
{
    GuiRequests::send(std::move(request));
}

void DialogBase::markEdited()
{
    if (m_object != nullptr && m_object->project() != nullptr) {
        m_object->project()->markEdited();
    }
}

void DialogBase::closeEvent(QCloseEvent* event)
{
    if (QWidget* field = focusWidget()) {
        field->clearFocus(); // what is being typed counts
    }
    int policy =
        SettingsStore::instance().integer(QLatin1String(zul::setting::onCloseDialog), keepObject);
    if (m_forceClose) {
        policy = keepObject;
    } else if (policy == askUser) {
        const auto answer =
            MessageBoxes::ask(this, QMessageBox::Question, QStringLiteral("ZUL"),
                              QStringLiteral("Remove object from project ? !\n"),
                              {QMessageBox::No, QMessageBox::Yes, QMessageBox::Cancel});
        if (answer == QMessageBox::Cancel) {
            event->ignore();
            return;
        }
        policy = answer == QMessageBox::Yes ? removeObject : keepObject;
    }
    closeByPolicy(policy, event);
    if (event->isAccepted()) {
        detach();
        setObject(nullptr);
    }
}

int DialogBase::objectId() const
{
    return m_object != nullptr ? m_object->id() : noObject;
}

void DialogBase::closeByPolicy(int policy, QCloseEvent* event)
{
    switch (policy) {
    case keepObject:
        emit signalDeleteDialog(objectId());
        event->accept();
        break;
    case removeObject:
        emit signalDeleteObject(objectId());
        event->accept();
        break;
    default:
        break;
    }
}

void DialogBase::detach()
{
    // A closed window is deleted only when control returns to the event loop. Its object may have a
    // new one by then, and is not to be saved as having a window before.
    if (m_object != nullptr && m_object->dialog() == this) {
        m_object->setDialog(nullptr);
    }
}

} // namespace gui
