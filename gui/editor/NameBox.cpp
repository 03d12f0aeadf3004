#include "gui/editor/NameBox.h"

#include <QListView>
#include <QProxyStyle>
#include <QSignalBlocker>
#include <QStringListModel>

namespace gui {

namespace {

constexpr int leastLetters = 12; ///< that are visible of a name
constexpr int visibleNames = 20; ///< in the list

/// Drops the list down below the box. As a menu it would be as high as the screen, and Qt would
/// measure all names first.
class DropDownStyle : public QProxyStyle
{
public:
    int styleHint(StyleHint hint, const QStyleOption* option, const QWidget* widget,
                  QStyleHintReturn* returned) const override
    {
        return hint == SH_ComboBox_Popup ? 0
                                         : QProxyStyle::styleHint(hint, option, widget, returned);
    }
};

} // namespace

NameBox::NameBox(QWidget* parent) : QComboBox(parent), m_model(new QStringListModel(this))
{
    auto* style = new DropDownStyle;
    style->setParent(this);
    setStyle(style);
    auto* list = new QListView(this);
    list->setUniformItemSizes(true); // there may be thousands
    setView(list);
    setMaxVisibleItems(visibleNames);
    setSizeAdjustPolicy(AdjustToMinimumContentsLengthWithIcon);
    setMinimumContentsLength(leastLetters);
    setModel(m_model);
    connect(this, QOverload<int>::of(&QComboBox::activated), this,
            [this](int row) { emit signalChosen(itemText(row)); });
}

void NameBox::setNames(const QStringList& names)
{
    if (names.isSharedWith(m_names)) {
        return;
    }
    const QSignalBlocker silent(this);
    m_names = names;
    m_hasForeign = false;
    m_model->setStringList(m_names);
    setCurrentIndex(-1);
}

void NameBox::setName(const QString& name)
{
    const QSignalBlocker silent(this);
    removeForeign();
    const int row = m_names.indexOf(name);
    if (row < 0) {
        m_model->insertRow(0);
        m_model->setData(m_model->index(0), name);
        m_hasForeign = true;
    }
    setCurrentIndex(qMax(row, 0));
}

void NameBox::removeForeign()
{
    if (m_hasForeign) {
        m_model->removeRow(0);
        m_hasForeign = false;
    }
}

} // namespace gui
