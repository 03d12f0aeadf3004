#pragma once

#include "gui/frame/DialogBase.h"

#include <optional>
#include <string>

class Filter;
class WidgetHeader;

namespace gui {

class DialogFilter;

/// Base of the windows that only take frames, from one interface or all, and through a filter: the
/// header that shows this, and the slots that store it.
class DialogInput : public DialogBase
{
    Q_OBJECT

public:
    DialogInput(Object* object, QWidget* parent);
    ~DialogInput() override;

    void setObject(Object* object) override;

protected:
    /// What the header shows of the paired object, which keeps it.
    struct Input
    {
        bool& isOn;
        QString& interface;
        Filter& filter;
    };

    /// Of the paired object; none without one of the window's type.
    virtual std::optional<Input> input() = 0;

    /// To be put into the layout.
    WidgetHeader* header() const { return m_header; }
    /// Fills the header, where there is an object.
    void showInput();
    /// Whether what controls tell is to be stored.
    bool canEdit();
    /// The object's interface, as batches name it.
    const std::string& inputInterface() const { return m_inputInterface; }

    bool m_updating = false; ///< controls are being filled

protected slots:
    void slotInputOn(bool on);
    void slotFilterSetup();
    void slotFilterOn(bool on);
    /// Nothing here: for windows that have a setup.
    virtual void slotSetup();
    void slotInputInterface(const QString& name);

private:
    WidgetHeader* m_header;
    DialogFilter* m_filterDialog;
    std::string m_inputInterface;
};

} // namespace gui
