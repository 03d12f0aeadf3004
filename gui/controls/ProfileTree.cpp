#include "gui/controls/ProfileTree.h"

#include "gui/controls/Look.h"
#include "gui/controls/ProfileTexts.h"

namespace gui {

namespace {

constexpr int leastHeight = 20; // pixels

} // namespace

ProfileTree::ProfileTree(const Profiles& profiles, QWidget* parent)
    : QTreeWidget(parent),
      m_profiles(profiles),
      m_profileIcon(icon("profile")),
      m_groupIcon(icon("group")),
      m_parameterIcon(icon("parameter"))
{
    setHeaderHidden(true);
    setSelectionMode(QAbstractItemView::SingleSelection);
    setUniformRowHeights(true);
    setMinimumHeight(leastHeight); // three docks share the height of a small screen
    connect(this, &QTreeWidget::itemExpanded, this, &ProfileTree::slotExpanded);
}

const ProfileParameter* ProfileTree::parameter(const QTreeWidgetItem& item)
{
    return static_cast<const ProfileParameter*>(item.data(0, parameterRole).value<void*>());
}

void ProfileTree::refill()
{
    clear();
    for (const auto& [name, profile] : m_profiles) {
        addProfile(profile);
    }
}

void ProfileTree::addProfile(const ArincProfile& profile)
{
    auto* top = new QTreeWidgetItem({profile.name});
    top->setData(0, profileNameRole, profile.name);
    top->setIcon(0, m_profileIcon);
    for (const auto& [key, group] : profile.fids) {
        auto* item = new QTreeWidgetItem(top, {codeText(key, group.name)});
        item->setIcon(0, m_groupIcon);
        if (!group.parameters.empty()) {
            item->setData(0, groupKeyRole, key);
            item->setChildIndicatorPolicy(QTreeWidgetItem::ShowIndicator);
        }
    }
    addTopLevelItem(top);
}

void ProfileTree::slotExpanded(QTreeWidgetItem* item)
{
    if (item->data(0, groupKeyRole).isValid()) {
        fillGroup(*item);
    }
}

void ProfileTree::fillGroup(QTreeWidgetItem& item)
{
    const std::uint32_t key = item.data(0, groupKeyRole).toUInt();
    item.setData(0, groupKeyRole, QVariant());
    item.setChildIndicatorPolicy(QTreeWidgetItem::DontShowIndicatorWhenChildless);
    const auto profile = m_profiles.find(item.parent()->data(0, profileNameRole).toString());
    if (profile == m_profiles.end()) {
        return;
    }
    const auto group = profile->second.fids.find(key);
    if (group == profile->second.fids.end()) {
        return;
    }
    QList<QTreeWidgetItem*> children;
    children.reserve(static_cast<int>(group->second.parameters.size()));
    for (const auto& [serial, parameter] : group->second.parameters) {
        children << parameterItem(parameter);
    }
    item.addChildren(children);
}

QTreeWidgetItem* ProfileTree::parameterItem(const ProfileParameter& parameter) const
{
    auto* item = new QTreeWidgetItem({parameterText(parameter)});
    item->setIcon(0, m_parameterIcon);
    item->setToolTip(0, parameterToolTip(parameter));
    item->setData(0, identifierRole, parameter.id);
    // As a variant holds it; nobody writes through it.
    item->setData(0, parameterRole,
                  QVariant::fromValue<void*>(const_cast<ProfileParameter*>(&parameter)));
    return item;
}

} // namespace gui
