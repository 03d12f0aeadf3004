#pragma once

#include <QDialog>

class QCheckBox;
class QComboBox;
class QGroupBox;
class QLineEdit;
class QListWidget;
class QListWidgetItem;
class QStackedWidget;

namespace gui {

class QwtComboBox;

/// Edits the settings of the user. Every change counts at once; there is no cancel.
class DialogPreferences : public QDialog
{
    Q_OBJECT

public:
    explicit DialogPreferences(QWidget* parent = nullptr);

private slots:
    void slotChangePage(QListWidgetItem* current, QListWidgetItem* previous);
    void slotClose();
    void slotOnClose(int policy) const;
    void slotTopLevel(int when) const;
    void slotAutoLoadProfile(int state) const;
    void slotProfileSuffix(const QString& suffix) const;
    void slotArincVersion(int version) const;
    void slotTraceType(int format) const;
    void slotTracePath(const QString& path) const;
    void slotTraceBrowse();

private:
    void addPage(const char* title, const char* iconName, QWidget* page);
    QWidget* buildGeneral();
    QWidget* buildProfiles();
    QWidget* buildTrace();
    void connectControls();
    /// Fills the controls from the settings.
    void load();

    bool m_loading = false; ///< the controls are being filled, and write nothing back

    QListWidget* m_pageList = nullptr;
    QStackedWidget* m_pages = nullptr;
    QwtComboBox* m_onClose = nullptr;
    QwtComboBox* m_topLevel = nullptr;
    QCheckBox* m_autoLoad = nullptr;
    QComboBox* m_suffix = nullptr;
    QwtComboBox* m_version = nullptr;
    QLineEdit* m_tracePath = nullptr;
};

} // namespace gui
