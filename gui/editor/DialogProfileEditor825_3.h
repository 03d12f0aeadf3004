#pragma once

#include "edit/Lru825Edit.h"
#include "gui/editor/DialogEditor.h"

#include <QIcon>

#include <cstddef>
#include <map>
#include <vector>

namespace gui {

class EditorForm;

/// Edits LRU documents: what a device on the bus sends and receives, on which interfaces, and what
/// its parameters mean. What is saved here stays in its file; the loaded profiles know nothing of
/// it.
///
/// Each slot of a field writes into the selected record.
class DialogProfileEditor825_3 : public DialogEditor
{
    Q_OBJECT

public:
    explicit DialogProfileEditor825_3(QWidget* parent = nullptr);

    const Lru825Document& document() const { return m_edit.document(); }
    const zul::Lru825Selection& selection() const { return m_edit.selection(); }

public slots:
    void slotHeaderId(const QString& id);
    void slotHeaderName(const QString& name);
    void slotHeaderMajor(int number);
    void slotHeaderMinor(int number);
    void slotHeaderVersion(int number);
    void slotHeaderComment(const QString& comment);

    void slotLruName(const QString& name);
    void slotLruNodeId(const QString& id);
    void slotLruNodeAddress(const QString& address);
    void slotLruComment(const QString& comment);

    void slotLruIfcName(const QString& name);
    void slotLruIfcBitrate(int code);
    void slotLruIfcRci(int code);
    void slotLruIfcComment(const QString& comment);
    void slotLruIfcTimeQuantum(int quanta);
    void slotLruIfcResync(int quanta);
    void slotLruIfcSyncSeg(int quanta);
    void slotLruIfcPropSeg(int quanta);
    void slotLruIfcPhaseSeg1(int quanta);
    void slotLruIfcPhaseSeg2(int quanta);
    void slotLruIfcSamplingPoint(int code);

    void slotMessageName(const QString& name);
    void slotMessageIdType(int code);
    void slotMessageIdLength(int code);
    void slotMessageLcc(int code);
    void slotMessageFid(int fid);
    void slotMessagePvt(bool isSet);
    void slotMessageLcl(bool isSet);
    void slotMessageFsb(bool isSet);
    void slotMessageDoc(int doc);
    void slotMessageTxp(int periodMs);
    void slotMessageLatency(int latencyMs);
    void slotMessagePort(int port);
    void slotMessageId(int id);
    void slotMessageFuncStatus(int code);

    void slotDataFieldName(const QString& name);
    void slotDataFieldPayload(const QString& protocol);
    void slotDataFieldDlc(int dlc);
    void slotDataFieldIntegrity(bool isHigh);

    void slotIfcRefName(const QString& name);
    void slotLruIfcRefRci(int code);

    void slotParaRefName(const QString& name);
    void slotSppByte(int byte);
    void slotSppBit(int bit);
    void slotEppByte(int byte);
    void slotEppBit(int bit);
    void slotPvsSppByte(int byte);
    void slotPvsSppBit(int bit);
    void slotPvsEppByte(int byte);
    void slotPvsEppBit(int bit);

    void slotParaName(const QString& name);
    void slotParaPua(const QString& unit);
    void slotParaDtn(int code);
    void slotParaMin(double value);
    void slotParaMax(double value);
    void slotParaResolution(double value);
    void slotParaOffset(double value);
    void slotParaNotes(const QString& notes);
    void slotParaComment(const QString& comment);
    void slotParaFid(int fid);
    /// The button of the parameter's page: the add button adds parameters while one is selected.
    void slotAddEnum();

    void slotEnumKey(const QString& key);
    void slotEnumValue(int value);

protected:
    void clearDocument() override;
    bool readDocument(const QString& path) override;
    bool writeDocument(const QString& path) override;
    void fillTree() override;
    void showItem(QTreeWidgetItem* item) override;
    QTreeWidgetItem* addRecord() override;
    bool deleteRecord() override;

private:
    using Item = zul::Lru825Item;

    struct Page
    {
        EditorForm* form;
        void (DialogProfileEditor825_3::*fill)();
    };

    // Pages, in DialogProfileEditor825_3Build.cpp.
    void buildPages();
    template <typename Fields>
    EditorForm& addPage(Item item, const char* title, const Fields& fields,
                        void (DialogProfileEditor825_3::*fill)());
    EditorForm& form(Item item) const { return *m_formPages.at(item).form; }
    void buildHeader();
    void buildLru();
    void buildInterface();
    void buildMessage();
    void buildDataField();
    void buildAssignment();
    void buildReference();
    void buildParameter();
    void buildEnumEntry();
    void fillHeader();
    void fillLru();
    void fillInterface();
    void fillMessage();
    void fillDataField();
    void fillAssignment();
    void fillReference();
    void fillParameter();
    void fillEnumEntry();

    // The tree.
    void loadIcons();
    QTreeWidgetItem* makeItem(Item item, const QString& text, std::uint32_t serial) const;
    QTreeWidgetItem* makeFixed(Item item, const char* text) const;
    QTreeWidgetItem* itemOf(const Lru825Interface& record) const;
    QTreeWidgetItem* itemOf(const Lru825Message& record) const;
    QTreeWidgetItem* itemOf(const Lru825Assignment& record) const;
    QTreeWidgetItem* itemOf(const Lru825Reference& record) const;
    QTreeWidgetItem* itemOf(const Lru825Parameter& record) const;
    QTreeWidgetItem* itemOf(const Lru825EnumEntry& record) const;
    QTreeWidgetItem* itemOfSelection();
    QTreeWidgetItem* insertItem(const zul::Lru825Selection& added);
    template <typename Records>
    void addItems(QTreeWidgetItem& parent, const Records& records) const;

    /// Sets a field of a record, which is none if it is null, unless pages are being filled. True
    /// if it was set.
    template <typename Record, typename Value, typename Given>
    bool write(Record* record, Value Record::*field, const Given& value);
    /// The same for the byte or bit of a position of the selected reference.
    void writePosition(Lru825Position Lru825Reference::*position,
                       std::uint32_t Lru825Position::*part, int value);
    void showText(const QString& text);

    zul::Lru825Edit m_edit;
    std::map<Item, Page> m_formPages;
    QWidget* m_emptyPage = nullptr;
    std::map<Item, QIcon> m_icons;
};

} // namespace gui
