#pragma once

#include <QPixmap>
#include <QSplashScreen>
#include <QStringList>
#include <QTimer>

namespace gui {

/// The splash screen of the start-up, with the lines that tell how far it has come.
class DialogSplash : public QSplashScreen
{
    Q_OBJECT

public:
    static constexpr int maxLines = 15;
    /// How long it stays after `finish`.
    static constexpr int lingerMs = 500;

    /// The one of the start-up; made and shown at its first use.
    static DialogSplash& instance();

    /// Appends a line, drops the oldest beyond `maxLines`, and repaints at once.
    void addMessage(const QString& line);
    /// The start-up is done: the window closes itself after a while and is not destroyed.
    void finish();

    const QStringList& lines() const { return m_lines; }

public slots:
    void slotTimeout();

protected:
    void drawContents(QPainter* painter) override;
    void mousePressEvent(QMouseEvent* event) override;

private:
    DialogSplash();

    QStringList m_lines;
    QPixmap m_picture;
    QTimer m_timer;
};

} // namespace gui
