#pragma once

#include <QMessageBox>
#include <QString>

#include <optional>
#include <vector>

namespace gui {

/// The program's message boxes, all through here, so that tests can answer them.
class MessageBoxes
{
public:
    /// Title of boxes that warn.
    static constexpr const char* warningTitle = "ZUL Warning";

    /// What was asked last.
    struct Question
    {
        QMessageBox::Icon icon = QMessageBox::NoIcon;
        QString title;
        QString text;
        std::vector<QMessageBox::StandardButton> buttons; ///< from left to right
    };

    /// Shows a modal box with the buttons in this order, and returns the one that was pressed;
    /// closing the box counts as its last button.
    static QMessageBox::StandardButton ask(QWidget* parent, QMessageBox::Icon icon,
                                           const QString& title, const QString& text,
                                           const std::vector<QMessageBox::StandardButton>& buttons);

    /// The next `ask` shows nothing and returns this; for tests.
    static void setNextAnswer(QMessageBox::StandardButton answer);
    /// Number of boxes asked for so far; for tests.
    static int count();
    static const Question& last();
};

} // namespace gui
