#include "gui/frame/InputDialogs.h"

#include <QInputDialog>
#include <QPointer>

#include <utility>

namespace gui {

namespace {

struct NextAnswer
{
    bool isSet = false;
    std::optional<int> answer;
};

NextAnswer& nextAnswer()
{
    static NextAnswer next;
    return next;
}

InputDialogs::Question& lastQuestion()
{
    static InputDialogs::Question question;
    return question;
}

} // namespace

std::optional<int> InputDialogs::integer(QWidget* parent, const Question& question)
{
    lastQuestion() = question;
    const NextAnswer next = std::exchange(nextAnswer(), NextAnswer());
    if (next.isSet) {
        return next.answer;
    }
    // On the heap: the parent may go, with all its children, while the box is open.
    const QPointer<QInputDialog> dialog = new QInputDialog(parent);
    dialog->setInputMode(QInputDialog::IntInput);
    dialog->setWindowTitle(question.title);
    dialog->setLabelText(question.text);
    dialog->setIntRange(question.minimum, question.maximum);
    dialog->setIntStep(question.step);
    dialog->setIntValue(question.value);
    const bool isAccepted = dialog->exec() == QDialog::Accepted;
    std::optional<int> answer;
    if (dialog != nullptr) {
        if (isAccepted) {
            answer = dialog->intValue();
        }
        delete dialog;
    }
    return answer;
}

void InputDialogs::setNextInteger(std::optional<int> answer)
{
    nextAnswer() = {true, answer};
}

const InputDialogs::Question& InputDialogs::last()
{
    return lastQuestion();
}

} // namespace gui
