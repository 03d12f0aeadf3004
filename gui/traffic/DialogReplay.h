#pragma once

#include "gui/frame/DialogBase.h"
#include "traffic/Replay.h"

class ObjectReplay;
class QFrame;
class QLCDNumber;
class QLineEdit;
class QPushButton;
class QSlider;
class QTimer;
class QToolButton;
class WidgetHeader;

namespace gui {

/// Plays a recorded trace onto the bus in its recorded timing.
class DialogReplay : public DialogBase
{
    Q_OBJECT

public:
    /// `object` is null or outlives the window's pairing with it.
    DialogReplay(ObjectReplay* object, QWidget* parent);
    ~DialogReplay() override;

    /// The size that a new window gets in the desktop.
    QSize sizeHint() const override;

    void setObject(Object* object) override;
    void updateDialog() override;
    void forceClose() override;

    const Replay& replay() const { return m_player; }

private slots:
    void slotInputInterface(const QString& name);
    void slotOutputInterface(const QString& name);
    void slotOutputOn(bool on);
    void slotLoad();
    void slotStart();
    void slotStop();
    void slotAutoRepeat();
    void slotPosition(int position);
    void slotTimeout();

private:
    void build();
    QFrame* buildPlayer();
    void buildPosition();
    void connectControls();
    void showSettings();
    void showControls();
    void showPosition();

    ObjectReplay* m_replay;
    Replay m_player;
    bool m_updating = false;

    WidgetHeader* m_header = nullptr;
    QPushButton* m_load = nullptr;
    QPushButton* m_start = nullptr;
    QPushButton* m_stop = nullptr;
    QToolButton* m_autoRepeat = nullptr;
    QLineEdit* m_fileName = nullptr;
    QLCDNumber* m_time = nullptr;
    QSlider* m_slider = nullptr;
    QTimer* m_timer = nullptr;
};

} // namespace gui
