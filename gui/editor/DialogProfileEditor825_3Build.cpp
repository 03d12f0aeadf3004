#include "gui/editor/DialogProfileEditor825_3.h"
#include "gui/editor/Lru825Fields.h"
#include "profile/ProfileNumbers.h"

#include <QAbstractItemView>
#include <QPushButton>
#include <QStackedWidget>
#include <QStyle>
#include <QTextDocument>

#include <cmath>
#include <utility>

// The pages: their controls, and how they show a record.

namespace gui {

namespace {

using Choices = std::vector<std::pair<int, QString>>;
using Editor = DialogProfileEditor825_3;

// The names of a list in the order of their codes.
Choices choicesOf(const Lru825ValueList& list)
{
    Choices choices;
    for (const auto& [code, name] : list.names()) {
        choices.emplace_back(static_cast<int>(code), name);
    }
    return choices;
}

template <std::size_t Size>
Choices choicesOf(const std::array<lru825::ChoiceText, Size>& texts)
{
    Choices choices;
    for (const lru825::ChoiceText& choice : texts) {
        choices.emplace_back(static_cast<int>(choice.code), QLatin1String(choice.text));
    }
    return choices;
}

Choices fidChoices(const zul::CodeTable& table)
{
    Choices choices;
    for (const auto& [fid, label] : table) {
        choices.emplace_back(static_cast<int>(fid), QString::number(fid) + QStringLiteral(": <") +
                                                        label + QLatin1Char('>'));
    }
    return choices;
}

QStringList unitNames(const zul::CodeTable& table)
{
    QStringList names;
    for (const auto& [code, name] : table) {
        if (!name.isEmpty()) {
            names.append(name);
        }
    }
    return names;
}

// A number of a file as it stood there.
qint64 shown(std::uint32_t number)
{
    return zul::asSigned(number);
}

// Offers all function codes. Their labels are long: the list is as wide as the longest one, and the
// tool tip tells what the box cuts off.
void offerFids(EditorForm& page, const char* name, const zul::CodeTable& table)
{
    const Choices choices = fidChoices(table);
    page.setChoices(name, choices);
    auto& box = page.control<QwtComboBox>(name);
    int width = 0;
    for (const auto& choice : choices) {
        width = qMax(width, box.fontMetrics().horizontalAdvance(choice.second));
    }
    box.view()->setMinimumWidth(width + 2 * box.style()->pixelMetric(QStyle::PM_ScrollBarExtent));
    const QString toolTip = box.toolTip() + QLatin1Char('\n');
    QObject::connect(&box, &QComboBox::currentTextChanged, &box, [&box, toolTip](auto& text) {
        box.setToolTip(Qt::convertFromPlainText(toolTip + text, Qt::WhiteSpaceNormal));
    });
}

} // namespace

void Editor::buildPages()
{
    m_emptyPage = new QWidget(&pages());
    pages().addWidget(m_emptyPage);
    buildHeader();
    buildLru();
    buildInterface();
    buildMessage();
    buildDataField();
    buildAssignment();
    buildReference();
    buildParameter();
    buildEnumEntry();
}

template <typename Fields>
EditorForm& Editor::addPage(Item item, const char* title, const Fields& fields,
                            void (DialogProfileEditor825_3::*fill)())
{
    auto* made = new EditorForm(title, fields.data(), fields.size(), &pages());
    pages().addWidget(made);
    m_formPages.emplace(item, Page{made, fill});
    return *made;
}

void Editor::buildHeader()
{
    EditorForm& page =
        addPage(Item::Header, lru825::headerTitle, lru825::headerFields, &Editor::fillHeader);
    page.connectField("headerId", this, &Editor::slotHeaderId);
    page.connectField("headerName", this, &Editor::slotHeaderName);
    page.connectField("headerMajor", this, &Editor::slotHeaderMajor);
    page.connectField("headerMinor", this, &Editor::slotHeaderMinor);
    page.connectField("headerVersion", this, &Editor::slotHeaderVersion);
    page.connectField("headerComment", this, &Editor::slotHeaderComment);
}

void Editor::fillHeader()
{
    const Lru825Document& document = m_edit.document();
    EditorForm& page = form(Item::Header);
    page.setText("headerId", document.id);
    page.setText("headerName", document.name);
    page.setNumber("headerMajor", document.major);
    page.setNumber("headerMinor", document.minor);
    page.setNumber("headerVersion", document.version);
    page.setText("headerComment", document.comment);
}

void Editor::buildLru()
{
    EditorForm& page = addPage(Item::Lru, lru825::lruTitle, lru825::lruFields, &Editor::fillLru);
    page.connectField("lruName", this, &Editor::slotLruName);
    page.connectField("lruNodeId", this, &Editor::slotLruNodeId);
    page.connectField("lruNodeAddress", this, &Editor::slotLruNodeAddress);
    page.connectField("lruComment", this, &Editor::slotLruComment);
}

void Editor::fillLru()
{
    const Lru825Document& document = m_edit.document();
    EditorForm& page = form(Item::Lru);
    page.setText("lruName", document.lruName);
    page.setText("lruNodeId", document.nodeId);
    page.setText("lruNodeAddress", document.nodeAddress);
    page.setText("lruComment", document.lruComment);
}

void Editor::buildInterface()
{
    EditorForm& page = addPage(Item::Interface, lru825::interfaceTitle, lru825::interfaceFields,
                               &Editor::fillInterface);
    page.setChoices("ifcBitrate", choicesOf(lru825::bitRates));
    page.setChoices("ifcRci", choicesOf(m_edit.schema().redundancyChannels));
    page.setChoices("ifcSamplingPoint", choicesOf(lru825::samplingPoints));
    page.connectField("ifcName", this, &Editor::slotLruIfcName);
    page.connectField("ifcBitrate", this, &Editor::slotLruIfcBitrate);
    page.connectField("ifcRci", this, &Editor::slotLruIfcRci);
    page.connectField("ifcComment", this, &Editor::slotLruIfcComment);
    page.connectField("ifcTimeQuantum", this, &Editor::slotLruIfcTimeQuantum);
    page.connectField("ifcResync", this, &Editor::slotLruIfcResync);
    page.connectField("ifcSyncSeg", this, &Editor::slotLruIfcSyncSeg);
    page.connectField("ifcPropSeg", this, &Editor::slotLruIfcPropSeg);
    page.connectField("ifcPhaseSeg1", this, &Editor::slotLruIfcPhaseSeg1);
    page.connectField("ifcPhaseSeg2", this, &Editor::slotLruIfcPhaseSeg2);
    page.connectField("ifcSamplingPoint", this, &Editor::slotLruIfcSamplingPoint);
}

void Editor::fillInterface()
{
    const auto* record = m_edit.interface();
    if (record == nullptr) {
        return;
    }
    EditorForm& page = form(Item::Interface);
    page.setText("ifcName", record->name);
    page.setChoice("ifcBitrate", zul::asSigned(record->bitRate));
    page.setChoice("ifcRci", zul::asSigned(record->rci));
    page.setText("ifcComment", record->comment);
    page.setNumber("ifcTimeQuantum", record->timeQuantumPerBit);
    page.setNumber("ifcResync", record->resyncJumpWidth);
    page.setNumber("ifcSyncSeg", record->syncSeg);
    page.setNumber("ifcPropSeg", record->propSeg);
    page.setNumber("ifcPhaseSeg1", record->phaseSeg1);
    page.setNumber("ifcPhaseSeg2", record->phaseSeg2);
    page.setChoice("ifcSamplingPoint", zul::asSigned(record->samplingPointMode));
}

void Editor::buildMessage()
{
    EditorForm& page =
        addPage(Item::Message, lru825::messageTitle, lru825::messageFields, &Editor::fillMessage);
    const Lru825Schema& schema = m_edit.schema();
    page.setChoices("messageIdType", choicesOf(schema.identifierTypes));
    page.setChoices("messageIdLength", choicesOf(schema.identifierLengths));
    page.setChoices("messageLcc", choicesOf(schema.channels));
    offerFids(page, "messageFid", schema.fidTable);
    page.setChoices("messageFuncStatus", choicesOf(schema.functionalStates));
    page.connectField("messageName", this, &Editor::slotMessageName);
    page.connectField("messageIdType", this, &Editor::slotMessageIdType);
    page.connectField("messageIdLength", this, &Editor::slotMessageIdLength);
    page.connectField("messageLcc", this, &Editor::slotMessageLcc);
    page.connectField("messageFid", this, &Editor::slotMessageFid);
    page.connectField("messagePvt", this, &Editor::slotMessagePvt);
    page.connectField("messageLcl", this, &Editor::slotMessageLcl);
    page.connectField("messageFsb", this, &Editor::slotMessageFsb);
    page.connectField("messageDoc", this, &Editor::slotMessageDoc);
    page.connectField("messageTxp", this, &Editor::slotMessageTxp);
    page.connectField("messageLatency", this, &Editor::slotMessageLatency);
    page.connectField("messagePort", this, &Editor::slotMessagePort);
    page.connectField("messageId", this, &Editor::slotMessageId);
    page.connectField("messageFuncStatus", this, &Editor::slotMessageFuncStatus);
}

void Editor::fillMessage()
{
    const auto* record = m_edit.message();
    if (record == nullptr) {
        return;
    }
    EditorForm& page = form(Item::Message);
    page.setText("messageName", record->name);
    page.setChoice("messageIdType", zul::asSigned(record->identifierType));
    page.setChoice("messageIdLength", zul::asSigned(record->identifierLength));
    page.setChoice("messageLcc", zul::asSigned(record->defaultLcc));
    page.setChoice("messageFid", zul::asSigned(record->fid));
    page.setChecked("messagePvt", record->pvt != 0);
    page.setChecked("messageLcl", record->lcl != 0);
    page.setChecked("messageFsb", record->fsb != 0);
    page.setNumber("messageDoc", shown(record->doc));
    page.setRounded("messageTxp", record->txp);
    page.setRounded("messageLatency", record->latencyMax);
    page.setNumber("messagePort", record->defaultPort);
    page.setNumber("messageId", shown(record->fmc11BitId));
    page.setChoice("messageFuncStatus", zul::asSigned(record->impliedFunctionalStatus));
}

void Editor::buildDataField()
{
    EditorForm& page = addPage(Item::DataField, lru825::dataFieldTitle, lru825::dataFieldFields,
                               &Editor::fillDataField);
    page.connectField("dataFieldName", this, &Editor::slotDataFieldName);
    page.connectField("dataFieldPayload", this, &Editor::slotDataFieldPayload);
    page.connectField("dataFieldDlc", this, &Editor::slotDataFieldDlc);
    page.connectField("dataFieldIntegrity", this, &Editor::slotDataFieldIntegrity);
}

void Editor::fillDataField()
{
    const auto* record = m_edit.dataField();
    if (record == nullptr) {
        return;
    }
    EditorForm& page = form(Item::DataField);
    page.setText("dataFieldName", record->name);
    page.setText("dataFieldPayload", record->payloadProtocol);
    page.setNumber("dataFieldDlc", record->dlc);
    page.setChecked("dataFieldIntegrity", record->highIntegrity);
}

void Editor::buildAssignment()
{
    EditorForm& page = addPage(Item::Assignment, lru825::assignmentTitle, lru825::assignmentFields,
                               &Editor::fillAssignment);
    page.setChoices("assignmentRci", choicesOf(m_edit.schema().redundancyChannels));
    page.connectField("assignmentName", this, &Editor::slotIfcRefName);
    page.connectField("assignmentRci", this, &Editor::slotLruIfcRefRci);
}

void Editor::fillAssignment()
{
    const auto* record = m_edit.assignment();
    if (record == nullptr) {
        return;
    }
    EditorForm& page = form(Item::Assignment);
    page.setNames("assignmentName", m_edit.interfaceNames());
    page.setText("assignmentName", record->name);
    page.setChoice("assignmentRci", zul::asSigned(record->rci));
}

void Editor::buildReference()
{
    EditorForm& page = addPage(Item::Reference, lru825::referenceTitle, lru825::referenceFields,
                               &Editor::fillReference);
    page.connectField("referenceName", this, &Editor::slotParaRefName);
    page.connectField("sppByte", this, &Editor::slotSppByte);
    page.connectField("sppBit", this, &Editor::slotSppBit);
    page.connectField("eppByte", this, &Editor::slotEppByte);
    page.connectField("eppBit", this, &Editor::slotEppBit);
    page.connectField("pvsSppByte", this, &Editor::slotPvsSppByte);
    page.connectField("pvsSppBit", this, &Editor::slotPvsSppBit);
    page.connectField("pvsEppByte", this, &Editor::slotPvsEppByte);
    page.connectField("pvsEppBit", this, &Editor::slotPvsEppBit);
}

void Editor::fillReference()
{
    const auto* record = m_edit.reference();
    if (record == nullptr) {
        return;
    }
    EditorForm& page = form(Item::Reference);
    page.setNames("referenceName", m_edit.parameterNames());
    page.setText("referenceName", record->name);
    page.setPosition("spp", shown(record->spp.byte), shown(record->spp.bit));
    page.setPosition("epp", shown(record->epp.byte), shown(record->epp.bit));
    page.setPosition("pvsSpp", shown(record->pvsSpp.byte), shown(record->pvsSpp.bit));
    page.setPosition("pvsEpp", shown(record->pvsEpp.byte), shown(record->pvsEpp.bit));
}

void Editor::buildParameter()
{
    EditorForm& page = addPage(Item::Parameter, lru825::parameterTitle, lru825::parameterFields,
                               &Editor::fillParameter);
    page.setNames("parameterPua", unitNames(m_edit.schema().unitTable));
    page.setChoices("parameterDtn", choicesOf(m_edit.schema().dataTypes));
    offerFids(page, "parameterFid", m_edit.schema().fidTable);
    page.connectField("parameterName", this, &Editor::slotParaName);
    page.connectField("parameterPua", this, &Editor::slotParaPua);
    page.connectField("parameterDtn", this, &Editor::slotParaDtn);
    page.connectField("parameterMin", this, &Editor::slotParaMin);
    page.connectField("parameterMax", this, &Editor::slotParaMax);
    page.connectField("parameterResolution", this, &Editor::slotParaResolution);
    page.connectField("parameterOffset", this, &Editor::slotParaOffset);
    page.connectField("parameterNotes", this, &Editor::slotParaNotes);
    page.connectField("parameterComment", this, &Editor::slotParaComment);
    page.connectField("parameterFid", this, &Editor::slotParaFid);
    connect(&page.addButton("addEnum", lru825::addEnumText), &QPushButton::clicked, this,
            &Editor::slotAddEnum);
}

void Editor::fillParameter()
{
    const auto* record = m_edit.parameter();
    if (record == nullptr) {
        return;
    }
    EditorForm& page = form(Item::Parameter);
    page.setText("parameterName", record->name);
    page.setText("parameterPua", record->pua);
    page.setChoice("parameterDtn", zul::asSigned(record->dtn));
    page.setReal("parameterMin", record->min);
    page.setReal("parameterMax", record->max);
    page.setReal("parameterResolution", record->resolution);
    page.setReal("parameterOffset", record->offset);
    page.setText("parameterNotes", record->notes);
    page.setText("parameterComment", record->comment);
    page.setChoice("parameterFid", zul::asSigned(record->fid));
}

void Editor::buildEnumEntry()
{
    EditorForm& page =
        addPage(Item::EnumEntry, lru825::enumTitle, lru825::enumFields, &Editor::fillEnumEntry);
    page.connectField("enumKey", this, &Editor::slotEnumKey);
    page.connectField("enumValue", this, &Editor::slotEnumValue);
}

void Editor::fillEnumEntry()
{
    const auto* record = m_edit.enumEntry();
    if (record == nullptr) {
        return;
    }
    EditorForm& page = form(Item::EnumEntry);
    page.setText("enumKey", record->key);
    page.setNumber("enumValue", record->value);
}

} // namespace gui
