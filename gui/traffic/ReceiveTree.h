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

    /// Sets headers and column widths for the display mode, whatever the user made of them. A
    /// change of the column set is made while there are no rows.
    void buildColumns(DisplayMode mode);
    /// Makes items for the rows that `table` has more than the tree. `table` outlives the items.
    void addMissingRows(const ReceiveTable& table, int numberType);
    /// Paints the dirty rows and clears their marks; a cell is written only if its text differs.
    void paintDirtyRows(ReceiveTable& table, int numberType);
    DisplayMode mode() const { return m_mode; }
    /// Removes all items.
    void clearRows();

private:
    static constexpr std::size_t itemCount = receiveLineCount;

    /// Text colour of a row.
    enum class Shown { Nothing, Frame, ErrorFrame };

    /// The items of one row, and what they show, which is quicker to look at here than in them.
    struct Row
    {
        std::array<QTreeWidgetItem*, itemCount> items{}; ///< null for lines that the set has not
        std::size_t lines = 0; ///< lines from the first on that may have a text
        Shown shown = Shown::Nothing;
        bool hasBackground = false;
        bool hasLinesHidden = false; ///< as the byte count wants it
    };

    struct Sorting
    {
        int column;
        Qt::SortOrder order;
    };

    void sortByNone();
    void stopSorting(bool isInPlace);
    void goOnSorting(const Sorting& sorting);
    int rowOf(int place) const;
    bool isBefore(const ReceiveTable& table, const Sorting& sorting, int left, int right) const;
    bool isInOrder(const ReceiveTable& table, const Sorting& sorting) const;
    int placeOf(const ReceiveTable& table, const Sorting& sorting, int row) const;
    void addRow(const ReceiveTable& table, int index, int numberType, int place);
    void addNames(const ReceiveTable& table, int index, int numberType, QTreeWidgetItem& top) const;
    void addLines(Row& row) const;
    QFont cellFont(ReceiveColumnTexts::Font font) const;
    void setCellFonts(QTreeWidgetItem& item) const;
    void formatRow(const ReceiveTable& table, int index, int numberType);
    void paintRow(ReceiveTable& table, int index, int numberType);
    void paintActivity(ReceiveRow& record, Row& row) const;
    void paintLines(ReceiveRow& record, Row& row) const;

    QIcon m_alive;
    QIcon m_silent;
    QFont m_payloadFont;
    DisplayMode m_mode = DisplayMode::Can;
    ReceiveColumnSet m_set = ReceiveColumnSet::Can;
    int m_payloadColumn = 0; // meaningful in sets that have lines
    std::vector<Row> m_rows;
    ReceiveRowText m_text{};
};

} // namespace gui
