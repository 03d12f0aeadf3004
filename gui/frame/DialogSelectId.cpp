#include "gui/frame/DialogSelectId.h"

#include "comm/BatchListeners.h"
#include "core/Latin1.h"
#include "gui/controls/Colors.h"
#include "gui/controls/Look.h"
#include "gui/controls/ProfileTree.h"
#include "gui/controls/QwtPushButton.h"
#include "profile/ProfileStore.h"

#include <QCoreApplication>
#include <QPointer>
#include <QTabWidget>
#include <QVBoxLayout>
#include <QWindow>

namespace gui {

namespace {

constexpr QSize firstSize(400, 250);
constexpr int margin = 3;

// In the order of the tabs; the identifiers seen on the bus come behind them.
constexpr int arincTab = 0;
constexpr int zorbTab = 1;

DialogSelectId*& current()
{
    static DialogSelectId* dialog = nullptr;
    return dialog;
}

} // namespace

DialogSelectId& DialogSelectId::instance()
{
    if (current() == nullptr) {
        current() = new DialogSelectId;
        // A widget must not outlive the application.
        qAddPostRoutine(&DialogSelectId::destroy);
    }
    return *current();
}

void DialogSelectId::destroy()
{
    qRemovePostRoutine(&DialogSelectId::destroy);
    delete current();
    current() = nullptr;
}

DialogSelectId::DialogSelectId()
    : m_tabs(new QTabWidget(this)),
      m_arincTree(new ProfileTree(ProfileStore::instance().profiles(), this)),
      m_zorbTree(new ProfileTree(ProfileStore::instance().zorbProfiles(), this)),
      m_activeTree(new QTreeWidget(this))
{
    build();
    refill();
    const QPointer<DialogSelectId> self(this);
    m_listener = comm::BatchListeners::instance().add([self](MessageContainer& batch) {
        if (self != nullptr) {
            self->update(batch);
        }
    });
}

DialogSelectId::~DialogSelectId()
{
    comm::BatchListeners::instance().remove(m_listener);
}

void DialogSelectId::build()
{
    setWindowTitle(QStringLiteral("Select Message"));
    setWindowIcon(icon("parameter"));
    setModal(true);
    m_arincTree->setObjectName(QStringLiteral("arincProfiles"));
    m_zorbTree->setObjectName(QStringLiteral("canAerospaceProfiles"));
    m_tabs->addTab(m_arincTree, QStringLiteral("ARINC 825"));
    m_tabs->addTab(m_zorbTree, QStringLiteral("CANaerospace"));
    m_tabs->addTab(buildActivePage(), QStringLiteral("Active Ids"));
    for (QTreeWidget* tree : {static_cast<QTreeWidget*>(m_arincTree),
                              static_cast<QTreeWidget*>(m_zorbTree), m_activeTree}) {
        connect(tree, &QTreeWidget::itemDoubleClicked, this, &DialogSelectId::slotSelect);
    }
    auto* ok = new QPushButton(QStringLiteral("Ok"), this);
    ok->setObjectName(QStringLiteral("ok"));
    ok->setDefault(true);
    connect(ok, &QPushButton::clicked, this, &DialogSelectId::slotClose);
    auto* layout = new QVBoxLayout(this);
    layout->setContentsMargins(margin, margin, margin, margin);
    layout->setSpacing(margin);
    layout->addWidget(m_tabs);
    layout->addWidget(ok, 0, Qt::AlignRight);
    resize(firstSize);
}

QWidget* DialogSelectId::buildActivePage()
{
    auto* page = new QWidget(m_tabs);
    m_activeTree->setObjectName(QStringLiteral("activeIds"));
    m_activeTree->setHeaderHidden(true);
    m_activeTree->setRootIsDecorated(false);
    m_activeTree->setUniformRowHeights(true);
    m_activeTree->setSelectionMode(QAbstractItemView::SingleSelection);
    auto* clear = new QwtPushButton(QStringLiteral("Clear List"), colors::clear, page);
    clear->setObjectName(QStringLiteral("clearList"));
    clear->setAutoDefault(false);
    connect(clear, &QwtPushButton::clicked, this, &DialogSelectId::slotClearId);
    auto* layout = new QVBoxLayout(page);
    layout->setContentsMargins(0, 0, 0, margin);
    layout->setSpacing(margin);
    layout->addWidget(m_activeTree);
    layout->addWidget(clear, 0, Qt::AlignLeft);
    return page;
}

void DialogSelectId::refill()
{
    m_arincTree->refill();
    m_zorbTree->refill();
}

int DialogSelectId::choose(const QWidget* asking)
{
    // It has no parent; this keeps it above the window that asks.
    if (asking != nullptr && asking->windowHandle() != nullptr) {
        winId();
        windowHandle()->setTransientParent(asking->windowHandle());
    }
    return exec();
}

void DialogSelectId::update(MessageContainer& batch)
{
    const std::vector<std::uint32_t>& added = m_active.update(batch);
    if (added.empty()) {
        return;
    }
    QList<QTreeWidgetItem*> items;
    items.reserve(static_cast<int>(added.size()));
    for (const std::uint32_t id : added) {
        auto* item = new QTreeWidgetItem({zul::fromLatin1(activeIdentifierText(id))});
        item->setData(0, ProfileTree::identifierRole, id);
        items << item;
    }
    m_activeTree->addTopLevelItems(items);
}

void DialogSelectId::slotSelect(QTreeWidgetItem*, int)
{
    takeChoice();
}

void DialogSelectId::slotClearId()
{
    m_active.clear();
    m_activeTree->clear();
}

void DialogSelectId::slotClose()
{
    takeChoice();
}

QTreeWidget* DialogSelectId::currentTree() const
{
    switch (m_tabs->currentIndex()) {
    case arincTab:
        return m_arincTree;
    case zorbTab:
        return m_zorbTree;
    default:
        return m_activeTree;
    }
}

void DialogSelectId::takeChoice()
{
    const QTreeWidget* tree = currentTree();
    const QList<QTreeWidgetItem*> selected = tree->selectedItems();
    for (const QTreeWidgetItem* item : selected) {
        // Deliberate: profiles and groups have no identifier; choosing one gives 0.
        const std::uint32_t id = item->data(0, ProfileTree::identifierRole).toUInt();
        if (tree == m_activeTree) {
            m_choice.takeActive(id);
        } else {
            m_choice.takeParameter(id, ProfileTree::parameter(*item));
        }
    }
    accept();
}

} // namespace gui
