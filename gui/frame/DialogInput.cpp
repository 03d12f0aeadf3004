#include "gui/frame/DialogInput.h"

#include "core/Latin1.h"
#include "gui/frame/DialogFilter.h"
#include "gui/frame/WidgetHeader.h"
#include "project/Filter.h"

namespace gui {

DialogInput::DialogInput(Object* object, QWidget* parent)
    : DialogBase(object, parent),
      m_header(new WidgetHeader(this)),
      m_filterDialog(new DialogFilter(this))
{
    m_header->setMode(WidgetHeader::Mode::Input);
    connect(m_header, &WidgetHeader::signalInputOn, this, &DialogInput::slotInputOn);
    connect(m_header, &WidgetHeader::signalFilterOn, this, &DialogInput::slotFilterOn);
    connect(m_header, &WidgetHeader::signalFilterSetup, this, &DialogInput::slotFilterSetup);
    connect(m_header, &WidgetHeader::signalSetup, this, &DialogInput::slotSetup);
    connect(m_header, &WidgetHeader::signalInputInterface, this, &DialogInput::slotInputInterface);
}

DialogInput::~DialogInput() = default;

void DialogInput::setObject(Object* object)
{
    DialogBase::setObject(object);
    m_filterDialog->letGo(); // the filter was the former object's
}

void DialogInput::showInput()
{
    if (const std::optional<Input> shown = input()) {
        m_inputInterface = zul::toLatin1(shown->interface);
        m_header->setInputOn(shown->isOn);
        m_header->setFilterOn(shown->filter.isOn());
        m_header->setOutputOn(false);
        m_header->setInputInterface(shown->interface);
    }
}

bool DialogInput::canEdit()
{
    return !m_updating && input().has_value();
}

void DialogInput::slotInputOn(bool on)
{
    if (canEdit()) {
        input()->isOn = on;
        markEdited();
    }
}

void DialogInput::slotFilterSetup()
{
    if (canEdit()) {
        m_filterDialog->edit(input()->filter);
        markEdited();
    }
}

void DialogInput::slotFilterOn(bool on)
{
    if (canEdit()) {
        input()->filter.setOn(on);
        markEdited();
    }
}

void DialogInput::slotSetup() {}

void DialogInput::slotInputInterface(const QString& name)
{
    if (canEdit()) {
        input()->interface = name;
        m_inputInterface = zul::toLatin1(name);
        markEdited();
    }
}

} // namespace gui
