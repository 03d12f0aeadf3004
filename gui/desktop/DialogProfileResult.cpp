#include "gui/desktop/DialogProfileResult.h"

#include <QPushButton>
#include <QTextEdit>
#include <QVBoxLayout>

namespace gui {

namespace {

constexpr QSize firstSize(400, 300);

} // namespace

DialogProfileResult::DialogProfileResult(QWidget* parent)
    : QDialog(parent), m_text(new QTextEdit(this))
{
    setWindowTitle(QStringLiteral("Profile Check Result"));
    m_text->setReadOnly(true);
    m_text->setAcceptRichText(true);
    m_text->setUndoRedoEnabled(false);
    auto* ok = new QPushButton(QStringLiteral("Ok"), this);
    connect(ok, &QPushButton::clicked, this, &DialogProfileResult::slotClose);
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(m_text);
    layout->addWidget(ok, 0, Qt::AlignRight);
    resize(firstSize);
}

void DialogProfileResult::setText(const QString& html)
{
    m_text->setHtml(html);
}

void DialogProfileResult::slotClose()
{
    hide();
}

} // namespace gui
