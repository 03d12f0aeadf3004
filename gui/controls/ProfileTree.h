#pragma once

#include "profile/ArincProfile.h"

#include <QIcon>
#include <QTreeWidget>

#include <map>

namespace gui {

/// Profiles, their groups, and the parameters in them. The parameters of a group get their items
/// when the group is unfolded for the first time: a profile may have a million of them. One item at
/// most is selected.
class ProfileTree : public QTreeWidget
{
    Q_OBJECT

public:
    using Profiles = std::map<QString, ArincProfile>; ///< by name

    static constexpr int identifierRole = 2000; ///< of a parameter's item: its identifier
    static constexpr int parameterRole = 2001;  ///< of a parameter's item: where it lies

    /// Shows the profiles of a store, which belong to the caller and outlive the tree.
    ProfileTree(const Profiles& profiles, QWidget* parent);

    /// The parameter that the item stands for; null for a profile or a group. It is the store's,
    /// and is there until the profiles change, when `refill` is due.
    static const ProfileParameter* parameter(const QTreeWidgetItem& item);

    /// Shows what the profiles are now; nothing is unfolded.
    void refill();

private slots:
    void slotExpanded(QTreeWidgetItem* item);

private:
    static constexpr int groupKeyRole = Qt::UserRole;        ///< of a group whose items are to come
    static constexpr int profileNameRole = Qt::UserRole + 1; ///< of a profile

    void addProfile(const ArincProfile& profile);
    void fillGroup(QTreeWidgetItem& item);
    QTreeWidgetItem* parameterItem(const ProfileParameter& parameter) const;

    const Profiles& m_profiles;
    QIcon m_profileIcon;
    QIcon m_groupIcon;
    QIcon m_parameterIcon;
};

} // namespace gui
