#pragma once

#include "traffic/TraceRecorder.h"

#include <QPlainTextEdit>

namespace gui {

/// The running text of the Trace window. It keeps what `TraceRecorder::surplusBlocks` allows.
class TraceView : public QPlainTextEdit
{
    Q_OBJECT

public:
    explicit TraceView(QWidget* parent = nullptr);

    /// Adds the lines of one batch, which are one block of the text.
    void appendLines(const QString& html);
    /// For tests: fewer characters than `TraceRecorder::maxCharacters`.
    void setMaxCharacters(int maxCharacters) { m_maxCharacters = maxCharacters; }

private:
    int m_maxCharacters = TraceRecorder::maxCharacters;
};

} // namespace gui
