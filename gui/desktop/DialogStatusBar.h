#pragma once

#include <QStatusBar>
#include <QTimer>

namespace gui {

class QwtLabel;

/// The status bar of the main window, with the program's version at its right end.
class DialogStatusBar : public QStatusBar
{
    Q_OBJECT

public:
    explicit DialogStatusBar(QWidget* parent = nullptr);

private slots:
    void slotTimeout();
    void slotAbout();
    void slotStatus();
    void slotStatistic();

private:
    QTimer m_timer;
    QwtLabel* m_version;
};

} // namespace gui
