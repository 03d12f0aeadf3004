#include "edit/ProfileChoices.h"
#include "gui/editor/DialogProfileEditor.h"
#include "gui/editor/EditorForm.h"
#include "gui/editor/ListOnly.h"
#include "profile/ProfileStore.h"

#include <QBoxLayout>
#include <QStackedWidget>
#include <QToolButton>

// The pages and their connections.

namespace gui {

namespace field = profileField;

void DialogProfileEditor::buildPages()
{
    constexpr int choiceWidth = 24; // letters; names of the profile may be of any length
    for (const ProfilePage& page : profilePages) {
        auto* made = new EditorForm(page.title, page.fields, page.fieldCount, this);
        for (QwtComboBox* choice : made->findChildren<QwtComboBox*>()) {
            choice->setSizeAdjustPolicy(QComboBox::AdjustToMinimumContentsLengthWithIcon);
            choice->setMinimumContentsLength(choiceWidth);
        }
        m_forms.at(static_cast<std::size_t>(page.item)) = made;
        pages().addWidget(made);
    }
    // The header is all that there is on its page.
    auto* headerLayout = qobject_cast<QBoxLayout*>(form(ProfileItem::Header).layout());
    headerLayout->setStretch(headerLayout->count() - 2, 1);
    headerLayout->setStretch(headerLayout->count() - 1, 0);
    // Each code that is passed over would lose its chapter.
    ListOnly::protect(form(ProfileItem::Chapter).control<QwtComboBox>(field::chapterFid));
    EditorForm& parameter = form(ProfileItem::Parameter);
    parameter.setChoices(field::lcc, zul::channelChoices(m_store));
    parameter.setChoices(field::rci, zul::rciChoices());
    widenButtons();
    connectRecordPages();
    connectParameterPage();
}

// For their longest texts, so that the buttons stay where they are while the selection changes.
void DialogProfileEditor::widenButtons()
{
    const auto widen = [](QToolButton& button, const char* ProfilePage::*text) {
        int width = 0;
        for (const ProfilePage& page : profilePages) {
            button.setText(QLatin1String(page.*text));
            width = qMax(width, button.sizeHint().width());
        }
        button.setMinimumWidth(width);
    };
    widen(addButton(), &ProfilePage::addText);
    widen(deleteButton(), &ProfilePage::deleteText);
}

EditorForm& DialogProfileEditor::form(ProfileItem page) const
{
    return *m_forms.at(static_cast<std::size_t>(page));
}

void DialogProfileEditor::connectRecordPages()
{
    using Editor = DialogProfileEditor;
    form(ProfileItem::Header).connectField(field::header, this, &Editor::slotHeader);
    EditorForm& info = form(ProfileItem::ProfileInfo);
    info.connectField(field::profileName, this, &Editor::slotProfileName);
    info.connectField(field::profileId, this, &Editor::slotProfileId);
    info.connectField(field::profileSubId, this, &Editor::slotProfileSubId);
    EditorForm& fid = form(ProfileItem::UserFid);
    fid.connectField(field::fidName, this, &Editor::slotFidName);
    fid.connectField(field::fidValue, this, &Editor::slotFidValue);
    EditorForm& unit = form(ProfileItem::UserUnit);
    unit.connectField(field::unitName, this, &Editor::slotUnitName);
    unit.connectField(field::unitValue, this, &Editor::slotUnitValue);
    EditorForm& value = form(ProfileItem::EnumValue);
    value.connectField(field::enumValue, this, &Editor::slotEnumValue);
    value.connectField(field::enumString, this, &Editor::slotEnumString);
    form(ProfileItem::Chapter).connectField(field::chapterFid, this, &Editor::slotChapterFid);
    connectKeys();
}

// What tells records apart counts when it is finished: on the way to it stand those of others.
void DialogProfileEditor::connectKeys()
{
    form(ProfileItem::UserFid).control<QSpinBox>(field::fidValue).setKeyboardTracking(false);
    form(ProfileItem::UserUnit).control<QSpinBox>(field::unitValue).setKeyboardTracking(false);
    form(ProfileItem::EnumValue).control<QSpinBox>(field::enumValue).setKeyboardTracking(false);
    auto& enumName = form(ProfileItem::Enumeration).control<QLineEdit>(field::enumName);
    connect(&enumName, &QLineEdit::editingFinished, this, [this, &enumName] {
        if (m_page == ProfileItem::Enumeration) {
            slotEnumName(enumName.text());
        }
    });
}

void DialogProfileEditor::connectParameterPage()
{
    using Editor = DialogProfileEditor;
    EditorForm& page = form(ProfileItem::Parameter);
    page.connectField(field::nme, this, &Editor::slotNme);
    page.connectField(field::lcc, this, &Editor::slotLcc);
    page.connectField(field::doc, this, &Editor::slotDoc);
    page.connectField(field::doc, this, &Editor::slotFid);
    page.connectField(field::sid, this, &Editor::slotSid);
    page.connectField(field::lcl, this, &Editor::slotLcl);
    page.connectField(field::pvt, this, &Editor::slotPvt);
    page.connectField(field::sppByte, this, &Editor::slotSppByte);
    page.connectField(field::sppBit, this, &Editor::slotSppBit);
    page.connectField(field::eppByte, this, &Editor::slotEppByte);
    page.connectField(field::eppBit, this, &Editor::slotEppBit);
    page.connectField(field::pua, this, &Editor::slotPua);
    page.connectField(field::dtn, this, &Editor::slotDtn);
    page.connectField(field::min, this, &Editor::slotMin);
    page.connectField(field::max, this, &Editor::slotMax);
    page.connectField(field::upr, this, &Editor::slotUpr);
    page.connectField(field::lat, this, &Editor::slotLat);
    page.connectField(field::rci, this, &Editor::slotRci);
    page.connectField(field::notes, this, &Editor::slotNotes);
    for (const char* number : {field::min, field::max, field::lat}) {
        restoreWhenLeft(ProfileItem::Parameter, number);
    }
}

// What a field shows and the record did not take goes when the field is left.
void DialogProfileEditor::restoreWhenLeft(ProfileItem page, const char* name)
{
    connect(&form(page).control<QLineEdit>(name), &QLineEdit::editingFinished, this, [this, page] {
        if (m_page == page) {
            restore();
        }
    });
}

void DialogProfileEditor::restore()
{
    guarded([this] { showRecord(); });
}

} // namespace gui
