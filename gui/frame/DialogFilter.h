#pragma once

#include <QDialog>

class Filter;
class QGroupBox;
class QListWidget;
class QPushButton;
class QSpinBox;

namespace gui {

class QwtIdSelect;

/// Edits a window's filter. What is changed counts at once, for the frames that follow.
///
/// The window owns the dialog, calls `edit` when its filter setup is asked for, and `letGo` when
/// its object goes.
class DialogFilter : public QDialog
{
    Q_OBJECT

public:
    explicit DialogFilter(QWidget* parent = nullptr);

    /// Shows the filter, which belongs to the caller; null for none, and nothing is edited then.
    void setFilter(Filter* filter);
    /// Comes to the front with the filter, which belongs to the caller.
    void edit(Filter& filter);
    /// Forgets the filter and hides.
    void letGo();

protected:
    /// Return presses the button that has the focus, and adds what is typed in the identifier's
    /// field; elsewhere it does nothing.
    void keyPressEvent(QKeyEvent* event) override;

private slots:
    void slotLimit(bool on);
    void slotSingle(bool on);
    void slotClose();
    void slotMin(int value);
    void slotMax(int value);
    void slotAdd();
    void slotDelete();
    void slotClear();

private:
    QGroupBox* buildLimit();
    QGroupBox* buildSingle();
    void connectControls();
    bool canEdit() const { return m_filter != nullptr && !m_updating; }
    void setType(int type);
    void refresh();

    Filter* m_filter = nullptr;
    bool m_updating = false;

    QGroupBox* m_limit = nullptr;
    QSpinBox* m_min = nullptr;
    QSpinBox* m_max = nullptr;
    QGroupBox* m_single = nullptr;
    QListWidget* m_ids = nullptr;
    QwtIdSelect* m_idSelect = nullptr;
    QPushButton* m_add = nullptr;
};

} // namespace gui
