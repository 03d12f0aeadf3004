#pragma once

#include "node/GeneratorControl.h"
#include "project/ObjectFunctionGen.h"

#include <QWidget>

#include <vector>

class QGridLayout;
class QListWidget;
class QListWidgetItem;
class QProgressBar;
class QPushButton;
class QSpinBox;
class QStackedWidget;

namespace gui {

class QwtComboBox;
class StateLabel;

/// The generators that were found, and what the addressed one is. It only shows; what a control
/// does is its owner's, who connects them.
class GeneratorNodePanel : public QWidget
{
    Q_OBJECT

public:
    struct Controls
    {
        QPushButton* search = nullptr;
        QListWidget* nodes = nullptr;
        QSpinBox* nodeId = nullptr;
        QPushButton* setNodeId = nullptr;
        QSpinBox* baseId = nullptr;
        QPushButton* setBaseId = nullptr;
        QwtComboBox* baudrate = nullptr;
        QPushButton* setBaudrate = nullptr;
        QPushButton* flash = nullptr;
    };

    /// Role of a node's base identifier in its item of the list; the node is the user role.
    static constexpr int baseIdRole = Qt::UserRole + 1;

    explicit GeneratorNodePanel(QWidget* parent = nullptr);

    const Controls& controls() const { return m_controls; }

    /// The progress bar instead of the search button; `node` is the next to be asked.
    void showSearch(bool isSearching, std::uint32_t node) const;
    void showFound(const std::vector<GeneratorControl::Found>& found) const;
    void showGenerator(const ObjectFunctionGen::Generator& generator) const;
    /// The state of the last request, which nothing else may follow while it waits.
    void showFlash(const StateLook& look, bool isWaiting) const;

private:
    void buildSearch();
    void buildSettings(QGridLayout& grid);
    QPushButton* makeButton(const char* text, const char* name);

    Controls m_controls;
    QStackedWidget* m_searchStack = nullptr;
    QProgressBar* m_progress = nullptr;
    StateLabel* m_status = nullptr;
};

} // namespace gui
