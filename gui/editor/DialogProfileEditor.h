#pragma once

#include "edit/ProfileEdit.h"
#include "edit/ProfileSelection.h"
#include "gui/editor/DialogEditor.h"
#include "gui/editor/ProfileItems.h"

#include <array>

class ProfileStore;

namespace gui {

class EditorForm;

/// The editor of text profiles, and of XML profiles with parameters where the setting
/// "ArincProfileVersion" says so. It checks nothing while the user types; what is wrong is told
/// when the file is loaded.
///
/// Numbers and names that tell records apart count when their entry is finished, and are not given
/// twice: what another record has is refused, and the field shows the old one again.
class DialogProfileEditor : public DialogEditor
{
    Q_OBJECT

public:
    /// The store belongs to the caller and outlives the window.
    explicit DialogProfileEditor(ProfileStore& store, QWidget* parent = nullptr);

public slots:
    void slotHeader(const QString& text);
    void slotProfileName(const QString& text);
    void slotProfileId(int number);
    void slotProfileSubId(int number);
    void slotFidName(const QString& text);
    void slotFidValue(int code);
    void slotUnitName(const QString& text);
    void slotUnitValue(int code);
    void slotEnumName(const QString& text);
    void slotEnumValue(int number);
    void slotEnumString(const QString& text);
    void slotChapterFid(int code);

    void slotNme(const QString& text);
    void slotLcc(int code);
    /// Of the first field, on channels without a server.
    void slotDoc(int number);
    /// Of the first field, on channels with a server.
    void slotFid(int code);
    void slotSid(int number);
    void slotLcl(bool isSet);
    void slotPvt(bool isSet);
    void slotSppByte(int byte);
    void slotSppBit(int bit);
    void slotEppByte(int byte);
    void slotEppBit(int bit);
    void slotPua(int code);
    void slotDtn(int choice);
    void slotMin(const QString& text);
    void slotMax(const QString& text);
    void slotUpr(int milliseconds);
    void slotLat(const QString& text);
    void slotRci(int code);
    void slotNotes(const QString& text);

protected:
    void clearDocument() override;
    bool readDocument(const QString& path) override;
    bool writeDocument(const QString& path) override;
    void fillTree() override;
    void showItem(QTreeWidgetItem* item) override;
    QTreeWidgetItem* addRecord() override;
    bool deleteRecord() override;

private:
    void buildPages();
    void widenButtons();
    void connectRecordPages();
    void connectParameterPage();
    void connectKeys();
    void restoreWhenLeft(ProfileItem page, const char* name);
    /// Shows the record as it is in place of what it did not take.
    void restore();
    EditorForm& form(ProfileItem page) const;

    void select(const QTreeWidgetItem& item);
    /// Fills the page of the selection.
    void showRecord();
    void showInfo();
    void showFid();
    void showUnit();
    void showEnumeration();
    void showEnumValue();
    void showChapter();
    void showParameter();
    void fillLists(EditorForm& page);
    void showIdentifier(const ProfileParameter& parameter);
    void showButtons(bool isSelected);
    /// Shows the chapter of a user FID that has just been added, renamed or deleted by its name.
    void refreshChapter(std::uint32_t fid);
    bool eraseRecord();

    template <typename Record, typename Write>
    void change(Record* record, Write write);
    template <typename Write>
    void changeParameter(Write write);
    ArincProfile& profile() { return m_edit.profile(); }

    ProfileStore& m_store;
    ProfileEdit m_edit;
    ProfileItems m_items;
    ProfileSelection m_selection;
    ProfileItem m_page = ProfileItem::Header;
    std::array<EditorForm*, profilePages.size()> m_forms{}; ///< by kind
    // Long lists are filled when they are wanted, and only anew if they have changed.
    bool m_areUnitsOld = true;
    bool m_areDataTypesOld = true;
};

} // namespace gui
