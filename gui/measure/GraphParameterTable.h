#pragma once

#include "project/GraphParameter.h"

#include <QTableWidget>

#include <vector>

namespace gui {

/// The parameters of a plot: shown or not, name, colour.
class GraphParameterTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { ActiveColumn, NameColumn, ColorColumn, ColumnCount };

    explicit GraphParameterTable(QWidget* parent = nullptr);

    /// Makes all rows anew, and selects one of them; none if there is no such row.
    /// The list stays scrolled as it was.
    void fill(const std::vector<GraphParameter>& parameters, int selectedRow);

    /// The row that is highlighted; -1 for none.
    int selectedRow() const;

signals:
    /// The user switched a parameter on or off.
    void signalActive(int row, bool checked);
};

} // namespace gui
