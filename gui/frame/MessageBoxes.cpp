#include "gui/frame/MessageBoxes.h"

#include <QAbstractButton>
#include <QHBoxLayout>
#include <QPointer>
#include <QPushButton>

#include <algorithm>

namespace gui {

namespace {

struct State
{
    std::optional<QMessageBox::StandardButton> nextAnswer;
    int count = 0;
    MessageBoxes::Question last;
};

State& state()
{
    static State instance;
    return instance;
}

QString buttonText(QMessageBox::StandardButton button)
{
    switch (button) {
    case QMessageBox::Yes:
        return QStringLiteral("Yes");
    case QMessageBox::No:
        return QStringLiteral("No");
    case QMessageBox::Cancel:
        return QStringLiteral("Cancel");
    default:
        return QStringLiteral("Ok");
    }
}

} // namespace

QMessageBox::StandardButton
MessageBoxes::ask(QWidget* parent, QMessageBox::Icon icon, const QString& title,
                  const QString& text, const std::vector<QMessageBox::StandardButton>& buttons)
{
    ++state().count;
    state().last = {icon, title, text, buttons};
    if (state().nextAnswer) {
        const auto answer = *state().nextAnswer;
        state().nextAnswer.reset();
        return answer;
    }
    // On the heap: the parent may go, with all its children, while the box is open.
    auto* box = new QMessageBox(icon, title, text, QMessageBox::NoButton, parent);
    const QPointer<QMessageBox> guard(box);
    box->setTextFormat(Qt::PlainText);
    // One role for all: a desktop's own order of roles would move the buttons.
    std::vector<QPushButton*> made;
    made.reserve(buttons.size());
    for (const auto button : buttons) {
        made.push_back(box->addButton(buttonText(button), QMessageBox::ActionRole));
    }
    if (!made.empty()) {
        box->setDefaultButton(made.front());
        box->setEscapeButton(made.back());
    }
    box->exec();
    auto answer = buttons.empty() ? QMessageBox::NoButton : buttons.back();
    if (!guard.isNull()) {
        const auto clicked = std::find(made.begin(), made.end(), box->clickedButton());
        if (clicked != made.end()) {
            answer = buttons[static_cast<std::size_t>(clicked - made.begin())];
        }
        delete box;
    }
    return answer;
}

void MessageBoxes::setNextAnswer(QMessageBox::StandardButton answer)
{
    state().nextAnswer = answer;
}

int MessageBoxes::count()
{
    return state().count;
}

const MessageBoxes::Question& MessageBoxes::last()
{
    return state().last;
}

} // namespace gui
