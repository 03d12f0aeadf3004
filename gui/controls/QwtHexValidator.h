#pragma once

#include <QIntValidator>

namespace gui {

/// Accepts decimal and, behind "0x", hexadecimal text within the range; an empty text counts as 0.
class QwtHexValidator : public QIntValidator
{
    Q_OBJECT

public:
    QwtHexValidator(int minimum, int maximum, QObject* parent = nullptr);

    /// `Acceptable` or `Invalid`, never `Intermediate`.
    State validate(QString& text, int& position) const override;
};

} // namespace gui
