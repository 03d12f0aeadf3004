#pragma once

#include "gui/frame/ActivityCounter.h"

#include <QToolBar>

#include <cstdint>

class QFrame;
class QGridLayout;
class QHBoxLayout;
class QLabel;
class QToolButton;

namespace gui {
class WidgetInterfaceSelect;
}

/// The toolbar at the top of most tool windows: what goes in and out, the filter, and how numbers
/// are shown. The window stores what the signals tell, and feeds the setters.
class WidgetHeader : public QToolBar
{
    Q_OBJECT

public:
    /// Which half of the toolbar works.
    enum class Mode : std::int32_t { Input = 0, Output = 1, Both = 2 };

    explicit WidgetHeader(QWidget* parent = nullptr);

    /// Set once by the window.
    void setMode(Mode mode);
    void setInputOn(bool on);
    void setOutputOn(bool on);
    void setFilterOn(bool on);
    /// 0 decimal, 1 hexadecimal.
    void setNumberType(int numberType);
    void setInputInterface(const QString& name);
    void setOutputInterface(const QString& name);
    /// Shows the count and lights the lamp while it changes. Called at every turn of the window's
    /// timer, since the lamp goes out only in such a call.
    void setInputCount(std::uint32_t count);
    /// Deliberate: the output counter has no lamp, its digits alone show activity.
    void setOutputCount(std::uint32_t count);
    /// Adds a control of the window to the custom area.
    void addCustomWidget(QWidget* widget);
    void addCustomStretch();

    /// Whether the window is so narrow that the custom area and the output stand in a row of their
    /// own below the others.
    bool isWrapped() const { return m_isWrapped; }

    bool isInputOn() const { return m_inputOn; }
    bool isOutputOn() const { return m_outputOn; }
    bool isFilterOn() const { return m_filterOn; }
    int numberType() const { return m_numberType; }

signals:
    void signalInputOn(bool on);
    void signalFilterOn(bool on);
    void signalFilterSetup();
    void signalSetup();
    void signalNumberType(int numberType);
    void signalOutputOn(bool on);
    void signalInputInterface(const QString& name);
    void signalOutputInterface(const QString& name);

private slots:
    void slotInput();
    void slotFilter();
    void slotFilterSetup();
    void slotSetup();
    void slotNumberType();
    void slotOutput();
    void slotInputInterface(const QString& name);
    void slotOutputInterface(const QString& name);

protected:
    void resizeEvent(QResizeEvent* event) override;

private:
    QHBoxLayout* makeRow(QWidget* parent);
    QLabel* makeCounter(const QString& toolTip, const QString& objectName);
    QToolButton* makeButton(const QString& toolTip, const QString& objectName);
    QFrame* addLine();
    int widthOfOneRow() const;
    void wrap();
    void buildInput();
    void buildFilter();
    void buildCustomArea();
    void buildOutput();
    void connectControls();
    void refresh();
    void refreshFilter();
    void refreshCounters();

    bool m_isWrapped = false;
    bool m_inputOn = true;
    bool m_outputOn = true;
    bool m_filterOn = false;
    gui::ActivityCounter m_input;
    gui::ActivityCounter m_output;
    bool m_paletteDirty = true; // so that the counters start in grey
    int m_numberType = 0;
    QString m_inputInterface;
    QString m_outputInterface;

    QWidget* m_first = nullptr;  // input, filter, setup and number format
    QWidget* m_second = nullptr; // custom area and output
    QGridLayout* m_rows = nullptr;
    QFrame* m_between = nullptr;      // the line between the two
    QHBoxLayout* m_current = nullptr; // the row that is being built
    gui::WidgetInterfaceSelect* m_inputSelect = nullptr;
    QLabel* m_inputCounter = nullptr;
    QToolButton* m_inputSwitch = nullptr;
    QToolButton* m_filterSwitch = nullptr;
    QToolButton* m_filterSetup = nullptr;
    QToolButton* m_setup = nullptr;
    QToolButton* m_numberFormat = nullptr;
    QHBoxLayout* m_customArea = nullptr;
    QToolButton* m_outputSwitch = nullptr;
    QLabel* m_outputCounter = nullptr;
    gui::WidgetInterfaceSelect* m_outputSelect = nullptr;
};
