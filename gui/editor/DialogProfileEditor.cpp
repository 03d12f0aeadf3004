#include "gui/editor/DialogProfileEditor.h"

#include "edit/ProfileChoices.h"
#include "edit/TypedText.h"
#include "gui/editor/EditorForm.h"
#include "profile/ComposedId.h"
#include "profile/ProfileNumbers.h"
#include "profile/ProfileStore.h"

#include <QLabel>
#include <QStackedWidget>
#include <QToolButton>
#include <QTreeWidget>

#include <optional>

// The document, the selection, and what the pages show of it.

namespace gui {

namespace field = profileField;
using zul::asSigned;

DialogProfileEditor::DialogProfileEditor(ProfileStore& store, QWidget* parent)
    : DialogEditor({"Profile Editor", "Profile File (*.pro);;All Files (*.*)", "pro"}, parent),
      m_store(store),
      m_edit(store),
      m_items(tree(), m_edit.profile())
{
    buildPages();
    startDocument();
}

void DialogProfileEditor::clearDocument()
{
    m_edit.clear();
}

bool DialogProfileEditor::readDocument(const QString& path)
{
    return m_edit.read(path);
}

bool DialogProfileEditor::writeDocument(const QString& path)
{
    return m_edit.write(path);
}

void DialogProfileEditor::fillTree()
{
    m_areUnitsOld = true;
    m_areDataTypesOld = true;
    m_items.fill();
}

void DialogProfileEditor::showItem(QTreeWidgetItem* item)
{
    m_selection = ProfileSelection();
    pages().setEnabled(item != nullptr);
    if (item != nullptr) {
        select(*item);
        pages().setCurrentIndex(static_cast<int>(m_page));
        showRecord();
    }
    showButtons(item != nullptr);
}

void DialogProfileEditor::select(const QTreeWidgetItem& item)
{
    m_page = ProfileItems::kind(item);
    switch (m_page) {
    case ProfileItem::UserFid:
        m_selection.fid = ProfileItems::code(item);
        break;
    case ProfileItem::UserUnit:
        m_selection.unit = ProfileItems::code(item);
        m_edit.holdUnit(m_selection.unit);
        break;
    case ProfileItem::Enumeration:
        m_selection.enumeration = ProfileItems::name(item);
        m_edit.adoptParameters(m_selection.enumeration);
        break;
    case ProfileItem::EnumValue:
        m_selection.enumeration = ProfileItems::name(*item.parent());
        m_selection.value = ProfileItems::value(item);
        break;
    case ProfileItem::Chapter:
        m_selection.chapter = ProfileItems::code(item);
        break;
    case ProfileItem::Parameter:
        m_selection.chapter = ProfileItems::code(*item.parent());
        m_selection.parameter = ProfileItems::code(item);
        break;
    default:
        break;
    }
}

void DialogProfileEditor::showButtons(bool isSelected)
{
    const ProfilePage& page = profilePage(m_page);
    const auto show = [](QToolButton& button, const char* text, bool isEnabled) {
        button.setText(QLatin1String(text));
        button.setToolTip(QLatin1String(text));
        button.setEnabled(isEnabled);
    };
    show(addButton(), page.addText, isSelected && page.canAdd);
    show(deleteButton(), page.deleteText, isSelected && page.canDelete);
}

// By the kind of the item: the numbers that stand for nothing may be a record's all the same.
void DialogProfileEditor::showRecord()
{
    switch (m_page) {
    case ProfileItem::Header:
        form(m_page).setText(field::header, profile().header);
        break;
    case ProfileItem::ProfileInfo:
        showInfo();
        break;
    case ProfileItem::UserFid:
        showFid();
        break;
    case ProfileItem::UserUnit:
        showUnit();
        break;
    case ProfileItem::Enumeration:
        showEnumeration();
        break;
    case ProfileItem::EnumValue:
        showEnumValue();
        break;
    case ProfileItem::Chapter:
        showChapter();
        break;
    case ProfileItem::Parameter:
        showParameter();
        break;
    default:
        break;
    }
}

void DialogProfileEditor::showInfo()
{
    EditorForm& page = form(ProfileItem::ProfileInfo);
    page.setText(field::profileName, profile().name);
    page.setNumber(field::profileId, asSigned(profile().id));
    page.setNumber(field::profileSubId, asSigned(profile().subId));
}

void DialogProfileEditor::showFid()
{
    EditorForm& page = form(ProfileItem::UserFid);
    if (const ProfileUserFid* fid = m_selection.fidOf(profile())) {
        page.setText(field::fidName, fid->name);
        page.setNumber(field::fidValue, asSigned(fid->code));
    }
}

void DialogProfileEditor::showUnit()
{
    EditorForm& page = form(ProfileItem::UserUnit);
    if (const ProfileUserUnit* unit = m_selection.unitOf(profile())) {
        page.setText(field::unitName, unit->name);
        page.setNumber(field::unitValue, asSigned(unit->code));
    }
}

void DialogProfileEditor::showEnumeration()
{
    if (const ProfileEnum* enumeration = m_selection.enumerationOf(profile())) {
        form(ProfileItem::Enumeration).setText(field::enumName, enumeration->name);
    }
}

void DialogProfileEditor::showEnumValue()
{
    EditorForm& page = form(ProfileItem::EnumValue);
    if (const ProfileEnumValue* entry = m_selection.valueOf(profile())) {
        page.setNumber(field::enumValue, entry->value);
        page.setText(field::enumString, entry->label);
    }
}

void DialogProfileEditor::showChapter()
{
    EditorForm& page = form(ProfileItem::Chapter);
    page.setChoices(field::chapterFid, zul::fidChoices(m_store, profile()));
    page.setChoice(field::chapterFid, asSigned(m_selection.chapter));
}

void DialogProfileEditor::showParameter()
{
    EditorForm& page = form(ProfileItem::Parameter);
    const ProfileParameter* parameter = m_selection.parameterOf(profile());
    if (parameter == nullptr) {
        return;
    }
    fillLists(page);
    page.setText(field::nme, parameter->nme);
    page.setChoice(field::lcc, asSigned(parameter->lcc));
    showIdentifier(*parameter);
    page.setChecked(field::lcl, parameter->lcl != 0);
    page.setChecked(field::pvt, parameter->pvt != 0);
    page.setPosition(field::spp, asSigned(parameter->sppByte), asSigned(parameter->sppBit));
    page.setPosition(field::epp, asSigned(parameter->eppByte), asSigned(parameter->eppBit));
    page.setChoice(field::pua, asSigned(parameter->puc));
    page.setChoice(field::dtn, zul::dataTypeChoice(m_store, profile(), *parameter));
    page.setText(field::min, zul::numberText(parameter->min));
    page.setText(field::max, zul::numberText(parameter->max));
    page.setNumber(field::upr, parameter->upr);
    page.setText(field::lat, zul::numberText(parameter->lat));
    page.setChoice(field::rci, asSigned(parameter->rci));
    page.setText(field::notes, parameter->notes);
}

void DialogProfileEditor::fillLists(EditorForm& page)
{
    if (m_areUnitsOld) {
        page.setChoices(field::pua, zul::unitChoices(m_store, profile()));
        m_areUnitsOld = false;
    }
    if (m_areDataTypesOld) {
        page.setChoices(field::dtn, zul::dataTypeChoices(m_store, profile()));
        m_areDataTypesOld = false;
    }
}

void DialogProfileEditor::showIdentifier(const ProfileParameter& parameter)
{
    EditorForm& page = form(ProfileItem::Parameter);
    const bool hasServer = zul::hasServer(parameter.lcc);
    const EditorField& plain = zul::hasDoc(parameter.lcc) ? docField : nidField;
    const EditorField& first = hasServer ? serverField : plain;
    page.label(field::doc).setText(QLatin1String(first.label));
    page.label(field::doc).setToolTip(QLatin1String(first.toolTip));
    page.setRange(field::doc, first);
    page.setNumber(field::doc, asSigned(hasServer ? parameter.dfid : parameter.doc));
    EditorField second = sidField;
    second.highest = static_cast<int>(m_edit.maxSid());
    page.setRange(field::sid, second);
    page.setNumber(field::sid, asSigned(parameter.sid));
    page.control<QSpinBox>(field::sid).setEnabled(hasServer);
}

void DialogProfileEditor::refreshChapter(std::uint32_t fid)
{
    if (m_edit.renameChapter(fid)) {
        m_items.refresh(*m_items.chapter(fid));
    }
}

QTreeWidgetItem* DialogProfileEditor::addRecord()
{
    const auto item = [this](const auto& key, QTreeWidgetItem& parent, ProfileItem kind) {
        return key ? m_items.add(parent, kind, *key) : nullptr;
    };
    if (tree().currentItem() == nullptr) {
        return nullptr;
    }
    QTreeWidgetItem& current = *tree().currentItem();
    switch (m_page) {
    case ProfileItem::UserFids:
    case ProfileItem::UserFid: {
        const auto code = m_edit.addUserFid();
        refreshChapter(code.value_or(ProfileSelection::nothing));
        return item(code, m_items.fixed(ProfileItem::UserFids), ProfileItem::UserFid);
    }
    case ProfileItem::UserUnits:
    case ProfileItem::UserUnit:
        m_areUnitsOld = true;
        return item(m_edit.addUserUnit(), m_items.fixed(ProfileItem::UserUnits),
                    ProfileItem::UserUnit);
    case ProfileItem::Enumerations:
        m_areDataTypesOld = true;
        return m_items.add(current, ProfileItem::Enumeration, m_edit.addEnumeration());
    case ProfileItem::Enumeration:
    case ProfileItem::EnumValue:
        return item(m_edit.addEnumValue(m_selection.enumeration),
                    m_page == ProfileItem::Enumeration ? current : *current.parent(),
                    ProfileItem::EnumValue);
    case ProfileItem::Chapters:
        return item(m_edit.addChapter(), current, ProfileItem::Chapter);
    case ProfileItem::Chapter:
    case ProfileItem::Parameter:
        return item(m_edit.addParameter(m_selection.chapter),
                    m_page == ProfileItem::Chapter ? current : *current.parent(),
                    ProfileItem::Parameter);
    default:
        return nullptr;
    }
}

bool DialogProfileEditor::eraseRecord()
{
    switch (m_page) {
    case ProfileItem::UserFid:
        profile().userFids.erase(m_selection.fid);
        refreshChapter(m_selection.fid);
        return true;
    case ProfileItem::UserUnit:
        profile().userUnits.erase(m_selection.unit);
        m_areUnitsOld = true;
        return true;
    case ProfileItem::Enumeration:
        profile().enums.erase(m_selection.enumeration);
        m_areDataTypesOld = true;
        return true;
    case ProfileItem::EnumValue:
        if (ProfileEnum* enumeration = m_selection.enumerationOf(profile())) {
            enumeration->values.erase(m_selection.value);
        }
        return true;
    case ProfileItem::Chapter:
        profile().fids.erase(m_selection.chapter);
        return true;
    case ProfileItem::Parameter:
        if (ProfileFidGroup* chapter = m_selection.chapterOf(profile())) {
            chapter->parameters.erase(m_selection.parameter);
        }
        return true;
    default:
        return false;
    }
}

bool DialogProfileEditor::deleteRecord()
{
    if (tree().currentItem() == nullptr || !eraseRecord()) {
        return false;
    }
    delete tree().currentItem(); // a neighbour or the parent is the current one now
    return true;
}

} // namespace gui
