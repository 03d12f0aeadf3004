#pragma once

#include <QDialog>

class QTextBrowser;
class QUrl;

/// Tells where the help pages are, and shows them if they are there.
class DialogHelp : public QDialog
{
    Q_OBJECT

public:
    explicit DialogHelp(QWidget* parent = nullptr);

private slots:
    void slotLinkClicked(const QUrl& link);
    void slotClose();

private:
    QTextBrowser* m_browser = nullptr; ///< null if there are no pages
};
