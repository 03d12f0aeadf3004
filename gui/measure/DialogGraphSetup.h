#pragma once

#include <QDialog>

#include <array>

class ObjectGraph;
class QCheckBox;
class QComboBox;
class QGridLayout;

namespace gui {

class ColorSelect;

/// Edits colours and switches of an oscilloscope; what is changed counts at once.
class DialogGraphSetup : public QDialog
{
    Q_OBJECT

public:
    explicit DialogGraphSetup(QWidget* parent = nullptr);

    /// Shows the settings of `object`, which belongs to the caller; null for none, and nothing is
    /// edited then.
    void setObject(ObjectGraph* object);
    /// Shows the settings as they are now.
    void refresh();

signals:
    /// Something of the object was changed.
    void signalChanged();

private slots:
    void slotPlotColor(const QString& color);
    void slotGridOn(bool on);
    void slotGridColor(const QString& color);
    void slotLabelColor(const QString& color);
    void slotLabelBackColor(const QString& color);
    void slotCursorOn(bool on);
    void slotCursorMode(int mode);
    void slotLegendOn(bool on);
    void slotAllOn();
    void slotAllOff();
    void slotClose();

private:
    void build();
    void buildAutoScale(QGridLayout& grid, int row);
    void connectControls();
    bool canEdit() const { return m_object != nullptr && !m_updating; }
    void setAllAutoScale(bool on);

    ObjectGraph* m_object = nullptr;
    bool m_updating = false;

    ColorSelect* m_plotColor = nullptr;
    QCheckBox* m_gridOn = nullptr;
    ColorSelect* m_gridColor = nullptr;
    ColorSelect* m_labelColor = nullptr;
    ColorSelect* m_labelBackColor = nullptr;
    QCheckBox* m_cursorOn = nullptr;
    QComboBox* m_cursorMode = nullptr;
    QCheckBox* m_legendOn = nullptr;
};

} // namespace gui
