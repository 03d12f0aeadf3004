#pragma once

#include <QWidget>

class ProfileStore;
class QHBoxLayout;

namespace gui {

class DialogProfileResult;
class ProfileTree;

/// The panel that lists the loaded profiles, and loads, forgets and checks them.
class DialogProfile : public QWidget
{
    Q_OBJECT

public:
    /// The store outlives the panel.
    explicit DialogProfile(ProfileStore& store, QWidget* parent = nullptr);

    /// The window that shows what a check found; it belongs to the caller and outlives the panel.
    void setResultWindow(DialogProfileResult* window);
    /// Shows what the store holds now.
    void refresh();
    /// Checks the store; what was found goes to the result window, which is shown then.
    void check();

signals:
    /// The store holds other profiles than before.
    void signalProfilesChanged();

private slots:
    void slotLoad();
    void slotLoadAll();
    void slotClear();
    void slotCheck();

private:
    void addButton(QHBoxLayout& row, const char* text, const char* toolTip,
                   void (DialogProfile::*slot)());

    ProfileStore& m_store;
    DialogProfileResult* m_result = nullptr;
    ProfileTree* m_arincTree;
    ProfileTree* m_zorbTree;
};

} // namespace gui
