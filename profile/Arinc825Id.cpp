#include "profile/Arinc825Id.h"

#include "core/NumberType.h"
#include "core/TextWriter.h"

namespace zul::arinc825 {

namespace {

struct NamedField
{
    const char* name;
    IdField field;
};

constexpr std::array<NamedField, 5> dataFields{{
    {"SFID ", data::sfid},
    {" FSB ", data::fsb},
    {" LCL ", data::lcl},
    {" PVT ", data::pvt},
    {" DOC ", data::doc},
}};

constexpr std::array<NamedField, 4> directedFields{{
    {"SA ", directed::sa},
    {" DA ", directed::da},
    {" SP ", directed::sp},
    {" DP ", directed::dp},
}};

constexpr std::array<NamedField, 6> serviceFields{{
    {"CFID ", service::cfid},
    {" SMT ", service::smt},
    {" LCL ", service::lcl},
    {" PVT ", service::pvt},
    {" SFID ", service::sfid},
    {" SID ", service::sid},
}};

void appendNumber(TextWriter& text, std::uint32_t number, const char* hexadecimalPrefix)
{
    if (hexadecimalPrefix == nullptr) {
        text.appendDecimal(number);
        return;
    }
    text.append(hexadecimalPrefix);
    text.appendHexadecimal(number);
}

template <std::size_t Count>
bool writeFields(char* buffer, std::size_t capacity, std::uint32_t id, int numberType,
                 const std::array<NamedField, Count>& fields)
{
    if (capacity == 0) {
        return true;
    }
    TextWriter text(buffer, capacity);
    for (const NamedField& named : fields) {
        text.append(named.name);
        appendNumber(text, named.field.get(id), isHexadecimal(numberType) ? "0x" : nullptr);
    }
    return true;
}

} // namespace

bool fieldText(char* buffer, std::size_t capacity, std::uint32_t id, int numberType)
{
    switch (channel(id).layout) {
    case Layout::None:
        return false;
    case Layout::Data:
        return writeFields(buffer, capacity, id, numberType, dataFields);
    case Layout::Service:
        return writeFields(buffer, capacity, id, numberType, serviceFields);
    case Layout::Directed:
        return writeFields(buffer, capacity, id, numberType, directedFields);
    }
    return false;
}

void parameterKeyText(char* buffer, std::size_t capacity, std::uint32_t id, int numberType)
{
    if (capacity == 0) {
        return;
    }
    constexpr std::array<NamedField, 5> fields{{
        {"", lcc},
        {"/", data::sfid},
        {"/", data::doc},
        {"/", data::lcl},
        {"/", data::pvt},
    }};
    TextWriter text(buffer, capacity);
    for (const NamedField& named : fields) {
        text.append(named.name);
        appendNumber(text, named.field.get(id), isHexadecimal(numberType) ? nullptr : "$");
    }
}

void parameterKeyIdText(char* buffer, std::size_t capacity, std::uint32_t id)
{
    if (capacity == 0) {
        return;
    }
    TextWriter text(buffer, capacity);
    text.append("0x");
    text.appendHexadecimal(parameterKey(id), TextWriter::Letters::Small);
}

} // namespace zul::arinc825
