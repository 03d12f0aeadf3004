#include "gui/traffic/TraceView.h"

#include "gui/controls/Look.h"

namespace gui {

namespace {

constexpr int fontPixels = 11;

} // namespace

TraceView::TraceView(QWidget* parent) : QPlainTextEdit(parent)
{
    setFont(typewriterFont(fontPixels));
    setReadOnly(true);
    setUndoRedoEnabled(false);
    setWordWrapMode(QTextOption::NoWrap);
    setLineWrapMode(QPlainTextEdit::NoWrap);
    setMaximumBlockCount(TraceRecorder::maxBlocks);
}

void TraceView::appendLines(const QString& html)
{
    appendHtml(html);
    const int surplus =
        TraceRecorder::surplusBlocks(blockCount(), document()->characterCount(), m_maxCharacters);
    if (surplus > 0) {
        setMaximumBlockCount(blockCount() - surplus);
        setMaximumBlockCount(TraceRecorder::maxBlocks);
    }
}

} // namespace gui
