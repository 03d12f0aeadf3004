#include "gui/traffic/ValueLines.h"

#include "gui/controls/QwtLineEdit.h"
#include "gui/traffic/EditorLook.h"

#include <QHBoxLayout>

namespace gui {

namespace {

constexpr int gap = 4;

} // namespace

ValueLines::ValueLines(int count, QWidget* parent) : QWidget(parent)
{
    auto* layout = new QHBoxLayout(this);
    layout->setContentsMargins(0, 0, 0, 0);
    layout->setSpacing(gap);
    for (int i = 0; i < count; ++i) {
        auto* line = new QwtLineEdit(i, this);
        line->setFixedHeight(editorFieldHeight);
        line->setMinimumWidth(0);
        layout->addWidget(line, 1, Qt::AlignTop);
        m_lines.push_back(line);
        connect(line, &QwtLineEdit::signalTextChanged, this, &ValueLines::signalText);
    }
}

void ValueLines::enableFirst(int count)
{
    for (std::size_t i = 0; i < m_lines.size(); ++i) {
        m_lines[i]->setEnabled(static_cast<int>(i) < count);
    }
}

void ValueLines::setMaxLength(int letters)
{
    for (QwtLineEdit* line : m_lines) {
        line->setMaxLength(letters);
    }
}

void ValueLines::setText(int index, const QString& text)
{
    m_lines.at(static_cast<std::size_t>(index))->setText(text);
}

} // namespace gui
