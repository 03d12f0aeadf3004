#pragma once

#include "profile/IdentifierChoice.h"
#include "traffic/ActiveIdentifiers.h"

#include <QDialog>

class MessageContainer;
class QTabWidget;
class QTreeWidget;
class QTreeWidgetItem;

namespace gui {

class ProfileTree;

/// Chooses one identifier: a parameter's of the loaded profiles, or one that was seen on the bus.
///
/// There is one, which hears every batch of every interface from its making on. The main window
/// makes it, so that identifiers are listed that came before the user asked for them.
class DialogSelectId : public QDialog
{
    Q_OBJECT

public:
    /// The one; made at the first use, and gone with the application at the latest.
    static DialogSelectId& instance();
    /// Destroys it; the next use makes a new one, which has seen nothing yet.
    static void destroy();

    ~DialogSelectId() override;

    /// Runs the dialog modally in front of `asking`. `QDialog::Accepted` if the user chose.
    int choose(const QWidget* asking);

    /// The identifier chosen last; 0 before, and if a profile or a group was chosen.
    std::uint32_t chosenId() const { return m_choice.id; }
    const ProfileParameter& chosenParameter() const { return m_choice.parameter; }

    /// Lists the identifiers of a batch that are not listed yet.
    void update(MessageContainer& batch);
    using QDialog::update;

public slots:
    /// Shows what the profiles are now: to be called whenever the set of them has changed.
    void refill();

private slots:
    void slotSelect(QTreeWidgetItem* pItem, int column);
    void slotClearId();
    void slotClose();

private:
    DialogSelectId();

    void build();
    QWidget* buildActivePage();
    QTreeWidget* currentTree() const;
    void takeChoice();

    ActiveIdentifiers m_active;
    IdentifierChoice m_choice;
    int m_listener = 0; // its number in comm::BatchListeners

    QTabWidget* m_tabs;
    ProfileTree* m_arincTree;
    ProfileTree* m_zorbTree;
    QTreeWidget* m_activeTree;
};

} // namespace gui
