#include "gui/editor/DialogProfileEditor825_3.h"

#include <QTreeWidget>

// What is edited in the pages goes to the selected record.

namespace gui {

template <typename Record, typename Value, typename Given>
bool DialogProfileEditor825_3::write(Record* record, Value Record::*field, const Given& value)
{
    if (isGuarded() || record == nullptr) {
        return false;
    }
    record->*field = static_cast<Value>(value);
    markChanged();
    return true;
}

void DialogProfileEditor825_3::writePosition(Lru825Position Lru825Reference::*position,
                                             std::uint32_t Lru825Position::*part, int value)
{
    Lru825Reference* reference = m_edit.reference();
    write(reference != nullptr ? &(reference->*position) : nullptr, part, value);
}

void DialogProfileEditor825_3::showText(const QString& text)
{
    if (QTreeWidgetItem* current = tree().currentItem()) {
        current->setText(0, text);
    }
}

void DialogProfileEditor825_3::slotHeaderId(const QString& id)
{
    write(&m_edit.document(), &Lru825Document::id, id);
}

void DialogProfileEditor825_3::slotHeaderName(const QString& name)
{
    write(&m_edit.document(), &Lru825Document::name, name);
}

void DialogProfileEditor825_3::slotHeaderMajor(int number)
{
    write(&m_edit.document(), &Lru825Document::major, number);
}

void DialogProfileEditor825_3::slotHeaderMinor(int number)
{
    write(&m_edit.document(), &Lru825Document::minor, number);
}

void DialogProfileEditor825_3::slotHeaderVersion(int number)
{
    write(&m_edit.document(), &Lru825Document::version, number);
}

void DialogProfileEditor825_3::slotHeaderComment(const QString& comment)
{
    write(&m_edit.document(), &Lru825Document::comment, comment);
}

void DialogProfileEditor825_3::slotLruName(const QString& name)
{
    write(&m_edit.document(), &Lru825Document::lruName, name);
}

void DialogProfileEditor825_3::slotLruNodeId(const QString& id)
{
    write(&m_edit.document(), &Lru825Document::nodeId, id);
}

void DialogProfileEditor825_3::slotLruNodeAddress(const QString& address)
{
    write(&m_edit.document(), &Lru825Document::nodeAddress, address);
}

void DialogProfileEditor825_3::slotLruComment(const QString& comment)
{
    write(&m_edit.document(), &Lru825Document::lruComment, comment);
}

void DialogProfileEditor825_3::slotLruIfcName(const QString& name)
{
    if (!isGuarded() && m_edit.interface() != nullptr) {
        m_edit.setInterfaceName(name);
        showText(name);
        markChanged();
    }
}

void DialogProfileEditor825_3::slotLruIfcBitrate(int code)
{
    write(m_edit.interface(), &Lru825Interface::bitRate, code);
}

void DialogProfileEditor825_3::slotLruIfcRci(int code)
{
    write(m_edit.interface(), &Lru825Interface::rci, code);
}

void DialogProfileEditor825_3::slotLruIfcComment(const QString& comment)
{
    write(m_edit.interface(), &Lru825Interface::comment, comment);
}

void DialogProfileEditor825_3::slotLruIfcTimeQuantum(int quanta)
{
    write(m_edit.interface(), &Lru825Interface::timeQuantumPerBit, quanta);
}

void DialogProfileEditor825_3::slotLruIfcResync(int quanta)
{
    write(m_edit.interface(), &Lru825Interface::resyncJumpWidth, quanta);
}

void DialogProfileEditor825_3::slotLruIfcSyncSeg(int quanta)
{
    write(m_edit.interface(), &Lru825Interface::syncSeg, quanta);
}

void DialogProfileEditor825_3::slotLruIfcPropSeg(int quanta)
{
    write(m_edit.interface(), &Lru825Interface::propSeg, quanta);
}

void DialogProfileEditor825_3::slotLruIfcPhaseSeg1(int quanta)
{
    write(m_edit.interface(), &Lru825Interface::phaseSeg1, quanta);
}

void DialogProfileEditor825_3::slotLruIfcPhaseSeg2(int quanta)
{
    write(m_edit.interface(), &Lru825Interface::phaseSeg2, quanta);
}

void DialogProfileEditor825_3::slotLruIfcSamplingPoint(int code)
{
    write(m_edit.interface(), &Lru825Interface::samplingPointMode, code);
}

void DialogProfileEditor825_3::slotMessageName(const QString& name)
{
    if (write(m_edit.message(), &Lru825Message::name, name)) {
        showText(zul::lru825Text(*m_edit.message()));
    }
}

void DialogProfileEditor825_3::slotMessageIdType(int code)
{
    write(m_edit.message(), &Lru825Message::identifierType, code);
}

void DialogProfileEditor825_3::slotMessageIdLength(int code)
{
    write(m_edit.message(), &Lru825Message::identifierLength, code);
}

void DialogProfileEditor825_3::slotMessageLcc(int code)
{
    write(m_edit.message(), &Lru825Message::defaultLcc, code);
}

void DialogProfileEditor825_3::slotMessageFid(int fid)
{
    write(m_edit.message(), &Lru825Message::fid, fid);
}

void DialogProfileEditor825_3::slotMessagePvt(bool isSet)
{
    write(m_edit.message(), &Lru825Message::pvt, isSet);
}

void DialogProfileEditor825_3::slotMessageLcl(bool isSet)
{
    write(m_edit.message(), &Lru825Message::lcl, isSet);
}

void DialogProfileEditor825_3::slotMessageFsb(bool isSet)
{
    write(m_edit.message(), &Lru825Message::fsb, isSet);
}

void DialogProfileEditor825_3::slotMessageDoc(int doc)
{
    write(m_edit.message(), &Lru825Message::doc, doc);
}

void DialogProfileEditor825_3::slotMessageTxp(int periodMs)
{
    write(m_edit.message(), &Lru825Message::txp, periodMs);
}

void DialogProfileEditor825_3::slotMessageLatency(int latencyMs)
{
    write(m_edit.message(), &Lru825Message::latencyMax, latencyMs);
}

void DialogProfileEditor825_3::slotMessagePort(int port)
{
    write(m_edit.message(), &Lru825Message::defaultPort, port);
}

void DialogProfileEditor825_3::slotMessageId(int id)
{
    write(m_edit.message(), &Lru825Message::fmc11BitId, id);
}

void DialogProfileEditor825_3::slotMessageFuncStatus(int code)
{
    write(m_edit.message(), &Lru825Message::impliedFunctionalStatus, code);
}

void DialogProfileEditor825_3::slotDataFieldName(const QString& name)
{
    write(m_edit.dataField(), &Lru825DataField::name, name);
}

void DialogProfileEditor825_3::slotDataFieldPayload(const QString& protocol)
{
    write(m_edit.dataField(), &Lru825DataField::payloadProtocol, protocol);
}

void DialogProfileEditor825_3::slotDataFieldDlc(int dlc)
{
    write(m_edit.dataField(), &Lru825DataField::dlc, dlc);
}

void DialogProfileEditor825_3::slotDataFieldIntegrity(bool isHigh)
{
    write(m_edit.dataField(), &Lru825DataField::highIntegrity, isHigh);
}

void DialogProfileEditor825_3::slotIfcRefName(const QString& name)
{
    if (write(m_edit.assignment(), &Lru825Assignment::name, name)) {
        showText(name);
    }
}

void DialogProfileEditor825_3::slotLruIfcRefRci(int code)
{
    write(m_edit.assignment(), &Lru825Assignment::rci, code);
}

void DialogProfileEditor825_3::slotParaRefName(const QString& name)
{
    if (write(m_edit.reference(), &Lru825Reference::name, name)) {
        showText(name);
    }
}

void DialogProfileEditor825_3::slotSppByte(int byte)
{
    writePosition(&Lru825Reference::spp, &Lru825Position::byte, byte);
}

void DialogProfileEditor825_3::slotSppBit(int bit)
{
    writePosition(&Lru825Reference::spp, &Lru825Position::bit, bit);
}

void DialogProfileEditor825_3::slotEppByte(int byte)
{
    writePosition(&Lru825Reference::epp, &Lru825Position::byte, byte);
}

void DialogProfileEditor825_3::slotEppBit(int bit)
{
    writePosition(&Lru825Reference::epp, &Lru825Position::bit, bit);
}

void DialogProfileEditor825_3::slotPvsSppByte(int byte)
{
    writePosition(&Lru825Reference::pvsSpp, &Lru825Position::byte, byte);
}

void DialogProfileEditor825_3::slotPvsSppBit(int bit)
{
    writePosition(&Lru825Reference::pvsSpp, &Lru825Position::bit, bit);
}

void DialogProfileEditor825_3::slotPvsEppByte(int byte)
{
    writePosition(&Lru825Reference::pvsEpp, &Lru825Position::byte, byte);
}

void DialogProfileEditor825_3::slotPvsEppBit(int bit)
{
    writePosition(&Lru825Reference::pvsEpp, &Lru825Position::bit, bit);
}

void DialogProfileEditor825_3::slotParaName(const QString& name)
{
    if (!isGuarded() && m_edit.parameter() != nullptr) {
        m_edit.setParameterName(name);
        showText(zul::lru825Text(*m_edit.parameter()));
        markChanged();
    }
}

void DialogProfileEditor825_3::slotParaPua(const QString& unit)
{
    write(m_edit.parameter(), &Lru825Parameter::pua, unit);
}

void DialogProfileEditor825_3::slotParaDtn(int code)
{
    write(m_edit.parameter(), &Lru825Parameter::dtn, code);
}

void DialogProfileEditor825_3::slotParaMin(double value)
{
    write(m_edit.parameter(), &Lru825Parameter::min, value);
}

void DialogProfileEditor825_3::slotParaMax(double value)
{
    write(m_edit.parameter(), &Lru825Parameter::max, value);
}

void DialogProfileEditor825_3::slotParaResolution(double value)
{
    write(m_edit.parameter(), &Lru825Parameter::resolution, value);
}

void DialogProfileEditor825_3::slotParaOffset(double value)
{
    write(m_edit.parameter(), &Lru825Parameter::offset, value);
}

void DialogProfileEditor825_3::slotParaNotes(const QString& notes)
{
    write(m_edit.parameter(), &Lru825Parameter::notes, notes);
}

void DialogProfileEditor825_3::slotParaComment(const QString& comment)
{
    write(m_edit.parameter(), &Lru825Parameter::comment, comment);
}

void DialogProfileEditor825_3::slotParaFid(int fid)
{
    if (write(m_edit.parameter(), &Lru825Parameter::fid, fid)) {
        showText(zul::lru825Text(*m_edit.parameter()));
    }
}

void DialogProfileEditor825_3::slotEnumKey(const QString& key)
{
    if (write(m_edit.enumEntry(), &Lru825EnumEntry::key, key)) {
        showText(key);
    }
}

void DialogProfileEditor825_3::slotEnumValue(int value)
{
    write(m_edit.enumEntry(), &Lru825EnumEntry::value, value);
}

} // namespace gui
