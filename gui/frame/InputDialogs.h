#pragma once

#include <QString>

#include <optional>

class QWidget;

namespace gui {

/// The program's boxes that ask for a number, all through here, so that tests can answer them.
class InputDialogs
{
public:
    struct Question
    {
        QString title;
        QString text;
        int value = 0;
        int minimum = 0;
        int maximum = 0;
        int step = 1;
    };

    /// The number that the user chose, starting at `value`; nothing if the user cancelled.
    static std::optional<int> integer(QWidget* parent, const Question& question);

    /// The next box shows nothing and returns this; for tests.
    static void setNextInteger(std::optional<int> answer);
    /// What was asked last; for tests.
    static const Question& last();
};

} // namespace gui
