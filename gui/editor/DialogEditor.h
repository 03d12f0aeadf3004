#pragma once

#include <QDialog>
#include <QString>

#include <functional>

class QPushButton;
class QStackedWidget;
class QToolButton;
class QTreeWidget;
class QTreeWidgetItem;

namespace gui {

/// What the two editors of profiles have in common: the buttons, a tree of the records beside the
/// page of the one that is selected, the file, and the question before unsaved work goes.
///
/// An editor fills tree and pages and does what the user asks for with its document; here is
/// decided when. It hides when it is finished; the document stays.
class DialogEditor : public QDialog
{
    Q_OBJECT

public:
    /// File name of a document that has never been saved.
    static constexpr const char* neverSaved = "none";

    ~DialogEditor() override;

    /// Asks whether to save what is not saved yet. False if the work is to go on: the user
    /// cancelled, or it could not be saved.
    bool askToSave();

    bool isChanged() const { return m_changed; }
    const QString& fileName() const { return m_fileName; }

    /// As `slotClose`: asks, then hides.
    void reject() override;

signals:
    /// The user has finished; the window is hidden.
    void closeDialog();

public slots:
    void slotNewProfile();
    void slotOpenProfile();
    void slotSaveProfile();
    void slotSaveAsProfile();
    void slotSelect(QTreeWidgetItem* current, QTreeWidgetItem* previous);
    void slotAdd();
    void slotDelete();
    void slotClose();

protected:
    /// What an editor calls itself, and its files.
    struct Texts
    {
        const char* windowTitle; ///< file name in brackets follows
        const char* filter;      ///< of both choosers
        const char* suffix;      ///< of a name that is typed without one
    };

    DialogEditor(const Texts& texts, QWidget* parent);

    /// Makes the document that the editor starts with. The editors' constructors call this last.
    void startDocument();

    // What an editor does with its document.

    /// Makes the document a new one.
    virtual void clearDocument() = 0;
    /// Replaces the document by that of a file. False if it cannot be read; the document then stays
    /// as it was.
    virtual bool readDocument(const QString& path) = 0;
    /// False if the file could not be written.
    virtual bool writeDocument(const QString& path) = 0;
    /// Fills the empty tree from the document.
    virtual void fillTree() = 0;
    /// Takes the item as the selection and shows its page, filled; null selects nothing. The guard
    /// is set.
    virtual void showItem(QTreeWidgetItem* item) = 0;
    /// Adds a record where the selection is. The new item; null if nothing was added.
    virtual QTreeWidgetItem* addRecord() = 0;
    /// Removes the selected record and its item. False if nothing was removed.
    virtual bool deleteRecord() = 0;

    /// What `slotAdd` does: calls `add` under the guard, and selects the item that it gives, with
    /// the lists above it unfolded. Null if nothing was added.
    void addItem(const std::function<QTreeWidgetItem*()>& add);
    /// The document differs from its file from now on.
    void markChanged();
    /// Set while pages are filled: slots of fields do nothing then.
    bool isGuarded() const { return m_guard; }
    /// Runs `fill` under the guard.
    void guarded(const std::function<void()>& fill);

    QTreeWidget& tree() { return *m_tree; }
    QStackedWidget& pages() { return *m_pages; }
    QToolButton& addButton() { return *m_add; }
    QToolButton& deleteButton() { return *m_delete; }

private:
    QToolButton* makeButton(const char* text, const char* iconName, void (DialogEditor::*slot)());
    void buildLayout();
    void refill();
    void commitEntry();
    QString presentPath() const;
    void setFile(const QString& fileName);
    void updateTitle();
    void save(const QString& path);

    Texts m_texts;
    QString m_fileName;
    bool m_changed = false;
    bool m_guard = false;
    QTreeWidget* m_tree;
    QStackedWidget* m_pages;
    QToolButton* m_add = nullptr;
    QToolButton* m_delete = nullptr;
};

} // namespace gui
