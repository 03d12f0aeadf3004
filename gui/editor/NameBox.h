#pragma once

#include <QComboBox>
#include <QStringList>

class QStringListModel;

namespace gui {

/// Offers names that records may refer to. The name that a record has is shown whether or not it is
/// among them; it then stands before them.
class NameBox : public QComboBox
{
    Q_OBJECT

public:
    explicit NameBox(QWidget* parent = nullptr);

    /// The names to offer. Cheap if the list shares its data with that of the last call.
    void setNames(const QStringList& names);
    /// Shows a name.
    void setName(const QString& name);

signals:
    /// The user chose a name.
    void signalChosen(const QString& name);

private:
    void removeForeign();

    QStringListModel* m_model;
    QStringList m_names;
    bool m_hasForeign = false; ///< the first row is a name that is not offered
};

} // namespace gui
