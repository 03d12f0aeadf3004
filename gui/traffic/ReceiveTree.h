#pragma once

#include "traffic/ReceiveRowText.h"

#include <QIcon>
#include <QTreeWidget>

#include <array>
#include <vector>

namespace gui {

/// The tree of the Receive window: it shows the rows of a `ReceiveTable` and knows nothing else.
class ReceiveTree : public QTreeWidget
{
    Q_OBJECT

public:
    explicit ReceiveTree(QWidget* parent = nullptr);

    /// Makes items for the rows that `table` has more than the tree. `table` outlives the items.
    void addMissingRows(const ReceiveTable& table, int numberType);
    /// Paints the dirty rows and clears their marks; a cell is written only if its text differs.
    void paintDirtyRows(ReceiveTable& table, int numberType);
    /// Removes all items.
    void clearRows();

private:
    static constexpr std::size_t itemCount = receiveLineCount;
    using Items = std::array<QTreeWidgetItem*, itemCount>;

    void buildColumns();
    void addRow(const ReceiveTable& table, int index, int numberType);
    void paintRow(ReceiveRow& row, const Items& items, int numberType);
    void paintActivity(ReceiveRow& row, const Items& items) const;
    void paintLines(ReceiveRow& row, const Items& items) const;

    QIcon m_alive;
    QIcon m_silent;
    QFont m_payloadFont;
    std::vector<Items> m_items;
    ReceiveRowText m_text{};
};

} // namespace gui
