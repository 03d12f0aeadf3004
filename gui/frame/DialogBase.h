#pragma once

#include "message/Message.h"
#include "project/ObjectWindow.h"

#include <QWidget>

#include <memory>

class MessageContainer;
class Object;

namespace gui {

/// Base of all tool windows. A window is paired with one object, which stays when the window
/// closes; closing destroys the window.
class DialogBase : public QWidget, public ObjectWindow
{
    Q_OBJECT

public:
    /// Pairs the window with `object`, which may be null.
    DialogBase(Object* object, QWidget* parent);
    ~DialogBase() override;

    void setObject(Object* object) override;
    /// A message from the main window's dispatch, which keeps it. Nothing here.
    virtual void guiMessage(Message* message);
    void receive(MessageContainer& batch) override;
    /// The way from a window to the interfaces.
    virtual void send(MessageContainer& batch);
    void updateDialog() override;
    /// The main window is about to close this window itself: no question will be asked.
    virtual void forceClose();

    /// The paired object; null once it is gone.
    Object* object() const { return m_object; }
    /// The parent given to the constructor.
    QWidget* mainWindow() const { return m_mainWindow; }
    const QString& name() const { return m_name; }
    /// Sets the name, which is also the window's title unless the window has another.
    void setName(const QString& name);
    const QString& typeTitle() const { return m_typeTitle; }
    void setTypeTitle(const QString& typeTitle);

    /// Gives the main window a request.
    static void guiRequest(std::unique_ptr<Message> request);

signals:
    /// The window closes, and its object stays in the project.
    void signalDeleteDialog(int objectId);
    /// The window closes, and its object is to be removed.
    void signalDeleteObject(int objectId);

protected:
    /// The project has something to save; nothing without an object of a project.
    void markEdited();
    void closeEvent(QCloseEvent* event) override;
    /// What the window's title shows: the name here.
    virtual QString titleText() const;
    /// Shows `titleText` as the title.
    void refreshTitle();

private:
    int objectId() const;
    void closeByPolicy(int policy, QCloseEvent* event);
    void detach();

    QWidget* m_mainWindow;
    Object* m_object;
    QString m_typeTitle;
    QString m_name;
    bool m_forceClose = false;
};

} // namespace gui
