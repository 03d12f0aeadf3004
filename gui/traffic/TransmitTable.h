#pragma once

#include <QMetaType>
#include <QTableWidget>

#include <set>
#include <vector>

struct SendMsg;

Q_DECLARE_METATYPE(SendMsg*)

namespace gui {

class MessageEditor;
class QwtTransmitButton;

/// The table of the Transmit window: name, editor and transmit button of each line.
///
/// An editor of 64 cells takes milliseconds and half a megabyte, and a project may have thousands
/// of lines: beyond the first rows, the table asks for a row's controls when it comes into view.
class TransmitTable : public QTableWidget
{
    Q_OBJECT

public:
    enum Column { NameColumn, MessageColumn, TransmitColumn, columnTotal };

    explicit TransmitTable(QWidget* parent = nullptr);

    /// Rows that get their controls at once.
    static constexpr int firstRows = 32;
    /// Rows above and below the view that keep their controls; those beyond give them back.
    static constexpr int keptRows = 100;

    /// Removes all rows and sets the columns anew.
    void startOver();
    /// Appends a row with the name of `line`, which the row then points to; returns its number.
    int appendLine(SendMsg* line);
    /// What is being typed in a row counts, as if the field had been left.
    void commitEntry();
    /// Asks for the controls of the first rows, and of those that are in view.
    void requestControls();
    /// Puts an editor into a row. The column of messages stretches, and if there is less room than
    /// `width` and what the editor needs, the table scrolls.
    void setEditor(int row, MessageEditor* editor, int width);
    void setButton(int row, QwtTransmitButton* button);
    /// The editor of a row; null if it has none.
    MessageEditor* editor(int row) const;
    /// The rows of the selected items, each once, from the top down.
    std::set<int> selectedRows() const;
    /// The line that an item points to; null if it points to none.
    static SendMsg* lineOf(const QTableWidgetItem& item);

signals:
    /// The row is to get its controls, which it has not.
    void signalControlsWanted(int row);

protected:
    void resizeEvent(QResizeEvent* event) override;
    void keyPressEvent(QKeyEvent* event) override;
    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    void fitColumns();
    void showField(const QWidget& field);
    void requestControls(int row);
    void giveBackControls(int top, int bottom);

    int m_messageWidth = 0;         // of the column at least
    std::vector<bool> m_isComplete; // by row: its controls were asked for
    bool m_isFilling = false;
    bool m_isFitting = false;
};

} // namespace gui
