#pragma once

#include <QDialog>

class QTextEdit;

namespace gui {

/// Shows what the check of the profiles found.
class DialogProfileResult : public QDialog
{
    Q_OBJECT

public:
    explicit DialogProfileResult(QWidget* parent = nullptr);

    /// Takes the report as HTML.
    void setText(const QString& html);

private slots:
    void slotClose();

private:
    QTextEdit* m_text;
};

} // namespace gui
