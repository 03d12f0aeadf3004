#pragma once

#include "gui/frame/DialogBase.h"
#include "traffic/TraceRecorder.h"

class ObjectTrace;
class QLabel;
class QToolButton;
class QVBoxLayout;
class WidgetHeader;

namespace gui {

class DialogFilter;
class QwtComboBox;
class TraceView;

/// Shows the traffic as running text, and records it to two files while a trace is active.
class DialogTrace : public DialogBase
{
    Q_OBJECT

public:
    /// `object` is null or outlives the window's pairing with it.
    DialogTrace(ObjectTrace* object, QWidget* parent);
    ~DialogTrace() override;

    /// The size that a new window gets in the desktop.
    QSize sizeHint() const override;

    void setObject(Object* object) override;
    void receive(MessageContainer& batch) override;

    const TraceRecorder& recorder() const { return m_recorder; }

public slots:
    void updateDialog() override;

private slots:
    void slotInputOn(bool on);
    void slotFilterSetup();
    void slotFilterOn(bool on);
    void slotSetup();
    void slotInputInterface(const QString& name);
    void slotOutputInterface(const QString& name);
    void slotStartStopTrace();
    void slotDisplayMode(int index);
    void slotRecordMode(int format);
    void slotNumberType(int mode);
    void slotClear();
    void slotScroll(int position);

private:
    void build();
    void buildHeader();
    void buildBottom(QVBoxLayout& layout);
    void connectControls();
    void showSettings();
    void showTraceState();

    ObjectTrace* m_trace;
    TraceRecorder m_recorder;
    bool m_updating = false;

    WidgetHeader* m_header = nullptr;
    QToolButton* m_startStop = nullptr;
    QwtComboBox* m_recordMode = nullptr;
    QLabel* m_status = nullptr;
    TraceView* m_view = nullptr;
    QwtComboBox* m_displayMode = nullptr;
    DialogFilter* m_filterDialog = nullptr;
};

} // namespace gui
