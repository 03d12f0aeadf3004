#pragma once

#include <QObject>

class QComboBox;

namespace gui {

/// Lets a selection box take only what is chosen in its unfolded list, so that neither the wheel
/// nor keys select what they pass over. Keys that would do that unfold the list.
class ListOnly : public QObject
{
    Q_OBJECT

public:
    /// Guards `box` for as long as it lives.
    static void protect(QComboBox& box);

    bool eventFilter(QObject* watched, QEvent* event) override;

private:
    explicit ListOnly(QComboBox& box);

    QComboBox& m_box;
};

} // namespace gui
