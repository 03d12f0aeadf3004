#include "traffic/ReceiveOrder.h"

#include "profile/Arinc825Id.h"
#include "profile/CanAerospaceLine.h"
#include "profile/DataTypes.h"
#include "profile/ProfileStore.h"
#include "profile/ValueCodec.h"
#include "profile/ValueText.h"
#include "traffic/ReceiveRowText.h"

#include <array>
#include <cmath>
#include <cstring>
#include <optional>
#include <tuple>

using zul::MessageCan;
namespace arinc825 = zul::arinc825;

namespace {

bool isCanLess(const ReceiveRow& left, const ReceiveRow& right, ReceiveColumn column)
{
    switch (column) {
    case ReceiveColumn::Count:
        return left.count < right.count;
    case ReceiveColumn::Time:
        return left.msg.timeStampDouble() < right.msg.timeStampDouble();
    case ReceiveColumn::Id:
        return left.msg.id() < right.msg.id();
    case ReceiveColumn::Length:
        return left.msg.byteCount() < right.msg.byteCount();
    case ReceiveColumn::Message:
        break; // see `isMessageLess`
    }
    return false;
}

bool isRawLess(const ReceiveRow& left, const ReceiveRow& right, ReceiveRawColumn column)
{
    const std::uint32_t leftId = left.msg.id();
    const std::uint32_t rightId = right.msg.id();
    switch (column) {
    case ReceiveRawColumn::Count:
        return left.count < right.count;
    case ReceiveRawColumn::Id:
        return leftId < rightId;
    case ReceiveRawColumn::Time:
        return left.msg.timeStampDouble() < right.msg.timeStampDouble();
    case ReceiveRawColumn::Lcc:
        return arinc825::lcc.get(leftId) < arinc825::lcc.get(rightId);
    case ReceiveRawColumn::Fields: // which stand there with the high bits first
        return arinc825::lcc.set(leftId, 0) < arinc825::lcc.set(rightId, 0);
    case ReceiveRawColumn::Rci:
        return arinc825::rci.get(leftId) < arinc825::rci.get(rightId);
    case ReceiveRawColumn::Data:
        return isPayloadLess(left.msg, right.msg);
    }
    return false;
}

// The fields in the order in which the column shows them.
auto keyFields(std::uint32_t id)
{
    return std::make_tuple(arinc825::lcc.get(id), arinc825::data::sfid.get(id),
                           arinc825::data::doc.get(id), arinc825::data::lcl.get(id),
                           arinc825::data::pvt.get(id));
}

// What the value column shows as a number, or as something that has one.
std::optional<double> valueNumber(const MessageCan& frame, const ProfileParameter& parameter)
{
    if (frame.frameType() == MessageCan::EFrameType::Error) {
        return std::nullopt;
    }
    switch (static_cast<zul::ArincType>(parameter.dtc)) {
    case zul::ArincType::Enum: {
        const std::optional<std::uint64_t> value = zul::enumValue(frame, parameter);
        return value ? std::optional<double>(static_cast<double>(*value)) : std::nullopt;
    }
    case zul::ArincType::Char:
    case zul::ArincType::UChar:
    case zul::ArincType::Short:
    case zul::ArincType::UShort:
    case zul::ArincType::Long:
    case zul::ArincType::ULong:
    case zul::ArincType::Float:
    case zul::ArincType::Long64:
    case zul::ArincType::ULong64:
    case zul::ArincType::Double:
    case zul::ArincType::Bool:
    case zul::ArincType::Bcd:
        return zul::arincValue(frame, parameter);
    default:
        return std::nullopt;
    }
}

// What is not a number comes before all that are, so that there is one order of all.
bool isNumberLess(double left, double right)
{
    if (std::isnan(left) || std::isnan(right)) {
        return std::isnan(left) && !std::isnan(right);
    }
    return left < right;
}

bool isValueTextLess(const MessageCan& left, const ProfileParameter& leftParameter,
                     const MessageCan& right, const ProfileParameter& rightParameter)
{
    std::array<char, zul::valueTextCapacity> leftText{};
    std::array<char, zul::valueTextCapacity> rightText{};
    const ProfileStore& store = ProfileStore::instance();
    zul::textOf(leftText.data(), leftText.size(), left, store, leftParameter);
    zul::textOf(rightText.data(), rightText.size(), right, store, rightParameter);
    return std::strcmp(leftText.data(), rightText.data()) < 0;
}

bool isValueLess(const ReceiveTable& table, int left, int right)
{
    const MessageCan& leftFrame = table.row(left).msg;
    const MessageCan& rightFrame = table.row(right).msg;
    const ProfileParameter& leftParameter = table.parameter(left).parameter;
    const ProfileParameter& rightParameter = table.parameter(right).parameter;
    const std::optional<double> leftNumber = valueNumber(leftFrame, leftParameter);
    const std::optional<double> rightNumber = valueNumber(rightFrame, rightParameter);
    if (leftNumber && rightNumber) {
        return isNumberLess(*leftNumber, *rightNumber);
    }
    if (leftNumber || rightNumber) {
        return !leftNumber;
    }
    return isValueTextLess(leftFrame, leftParameter, rightFrame, rightParameter);
}

bool isProfileLess(const ReceiveTable& table, int left, int right, ReceiveProfileColumn column)
{
    const ReceiveRow& leftRow = table.row(left);
    const ReceiveRow& rightRow = table.row(right);
    const std::uint32_t leftId = leftRow.msg.id();
    const std::uint32_t rightId = rightRow.msg.id();
    switch (column) {
    case ReceiveProfileColumn::Count:
        return leftRow.count < rightRow.count;
    case ReceiveProfileColumn::Id:
        return arinc825::parameterKey(leftId) < arinc825::parameterKey(rightId);
    case ReceiveProfileColumn::Key:
        return keyFields(leftId) < keyFields(rightId);
    case ReceiveProfileColumn::Rci:
        return arinc825::rci.get(leftId) < arinc825::rci.get(rightId);
    case ReceiveProfileColumn::Parameter:
        return receiveRowNames(leftRow, table.parameter(left)).parameter <
               receiveRowNames(rightRow, table.parameter(right)).parameter;
    case ReceiveProfileColumn::Value:
        return isValueLess(table, left, right);
    case ReceiveProfileColumn::Unit:
        return receiveRowNames(leftRow, table.parameter(left)).unit <
               receiveRowNames(rightRow, table.parameter(right)).unit;
    }
    return false;
}

bool isError(const ReceiveRow& row)
{
    return row.msg.frameType() == MessageCan::EFrameType::Error;
}

// Whether a cell of the row is empty on account of an error frame, the last one or an earlier one.
bool isEmptied(const ReceiveRow& row, DisplayMode mode, int column)
{
    switch (mode) {
    case DisplayMode::Can:
    case DisplayMode::CanAerospace:
        return isError(row) && column == static_cast<int>(ReceiveColumn::Length);
    case DisplayMode::Arinc825Raw:
        return isError(row) && column >= static_cast<int>(ReceiveRawColumn::Fields);
    case DisplayMode::Arinc825Profile:
        break;
    }
    switch (static_cast<ReceiveProfileColumn>(column)) {
    case ReceiveProfileColumn::Rci:
    case ReceiveProfileColumn::Parameter:
        return isError(row) || row.namesLost;
    case ReceiveProfileColumn::Value:
        return isError(row);
    default:
        return false;
    }
}

// By what the line begins with: the class of the identifier, node, type.
bool isCanAerospaceLess(const MessageCan& left, const MessageCan& right)
{
    std::array<char, zul::canAerospaceLineCapacity> leftLine{};
    std::array<char, zul::canAerospaceLineCapacity> rightLine{};
    constexpr auto decimal = static_cast<std::int32_t>(NumberType::Decimal);
    zul::canAerospaceLine(leftLine.data(), leftLine.size(), left, decimal);
    zul::canAerospaceLine(rightLine.data(), rightLine.size(), right, decimal);
    return std::strcmp(leftLine.data(), rightLine.data()) < 0;
}

// By what the cells show: an error frame leaves the message of the frame before it. Rows that have
// shown none come first.
bool isMessageLess(const ReceiveTable& table, DisplayMode mode, int left, int right)
{
    const auto shownFrame = [&table](int row) {
        return isError(table.row(row)) ? table.paintedFrame(row) : &table.row(row).msg;
    };
    const MessageCan* leftFrame = shownFrame(left);
    const MessageCan* rightFrame = shownFrame(right);
    if (leftFrame == nullptr || rightFrame == nullptr) {
        return leftFrame == nullptr && rightFrame != nullptr;
    }
    return mode == DisplayMode::CanAerospace ? isCanAerospaceLess(*leftFrame, *rightFrame)
                                             : isPayloadLess(*leftFrame, *rightFrame);
}

} // namespace

bool isReceiveRowLess(const ReceiveTable& table, DisplayMode mode, int column, int left, int right)
{
    const ReceiveRow& leftRow = table.row(left);
    const ReceiveRow& rightRow = table.row(right);
    const bool isLeftEmptied = isEmptied(leftRow, mode, column);
    const bool isRightEmptied = isEmptied(rightRow, mode, column);
    if (isLeftEmptied || isRightEmptied) {
        return isLeftEmptied && !isRightEmptied;
    }
    switch (mode) {
    case DisplayMode::Can:
    case DisplayMode::CanAerospace:
        return static_cast<ReceiveColumn>(column) == ReceiveColumn::Message
                   ? isMessageLess(table, mode, left, right)
                   : isCanLess(leftRow, rightRow, static_cast<ReceiveColumn>(column));
    case DisplayMode::Arinc825Raw:
        return isRawLess(leftRow, rightRow, static_cast<ReceiveRawColumn>(column));
    case DisplayMode::Arinc825Profile:
        return isProfileLess(table, left, right, static_cast<ReceiveProfileColumn>(column));
    }
    return false;
}
