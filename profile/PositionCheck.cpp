#include "profile/PositionCheck.h"

#include "profile/DataTypes.h"

namespace zul {

namespace {

struct Position
{
    std::uint32_t byte;
    std::uint32_t bit;

    bool is(std::uint32_t otherByte, std::uint32_t otherBit) const
    {
        return byte == otherByte && bit == otherBit;
    }
    bool isInFrame() const { return byte <= 7 && bit <= 7; }
};

// One parameter's positions and where they are complained of. Numbers out of an int's range are
// shown as C's "%d" shows them.
class Check
{
public:
    Check(const ProfileParameter& parameter, int line, ProfileReport& report)
        : m_spp{parameter.sppByte, parameter.sppBit},
          m_epp{parameter.eppByte, parameter.eppBit},
          m_line(line),
          m_report(report)
    {
    }

    void run(PositionRule rule)
    {
        switch (rule) {
        case PositionRule::Zero:
            zero();
            break;
        case PositionRule::OneByte:
            expect(m_spp.byte == m_epp.byte, "SPP Byte must be = EPP Byte");
            wholeBytes();
            break;
        case PositionRule::TwoBytes:
            expect(m_spp.byte == m_epp.byte + 1, "SPP Byte must be EPP Byte + 1");
            expect(m_spp.byte <= 7 && m_spp.byte % 2 == 1, "SPP Byte must be 1,3,5,7");
            wholeBytes();
            break;
        case PositionRule::FourBytes:
            expect(m_spp.byte == m_epp.byte + 3, "SPP Byte must be EPP Byte + 3");
            expect(m_spp.byte == 3 || m_spp.byte == 7, "SPP Byte must be 3,7");
            wholeBytes();
            break;
        case PositionRule::EightBytes:
            expect(m_spp.is(7, 0) && m_epp.is(0, 7), "Must be 7.0/0.7");
            break;
        case PositionRule::Free:
            free();
            break;
        }
    }

private:
    static int shown(std::uint32_t number) { return static_cast<int>(number); }

    void expect(bool holds, const char* ending)
    {
        if (!holds) {
            m_report.error(m_line, "Invalid SPP/EPP combination %d.%d/%d.%d . %s",
                           shown(m_spp.byte), shown(m_spp.bit), shown(m_epp.byte), shown(m_epp.bit),
                           ending);
        }
    }

    void wholeBytes()
    {
        expect(m_spp.bit == 0, "SPP Bit must be 0");
        expect(m_epp.bit == 7, "EPP Bit must be 7");
    }

    void zero()
    {
        if (!m_spp.is(0, 0)) {
            m_report.error(m_line, "Invalid SPP %d.%d . Must be 0 fo NODATA.", shown(m_spp.byte),
                           shown(m_spp.bit));
        }
        if (!m_epp.is(0, 0)) {
            m_report.error(m_line, "Invalid EPP %d.%d . Must be 0 fo NODATA.", shown(m_epp.byte),
                           shown(m_epp.bit));
        }
    }

    void free()
    {
        if (!m_spp.isInFrame()) {
            m_report.error(m_line, "Invalid SPP %d.%d . Must be in range [0..7].",
                           shown(m_spp.byte), shown(m_spp.bit));
        }
        if (!m_epp.isInFrame()) {
            m_report.error(m_line, "Invalid EPP %d.%d . Must be in range [0..7].",
                           shown(m_epp.byte), shown(m_epp.bit));
        }
        expect(m_spp.byte >= m_epp.byte, "SPP Byte must be greater/equal EPP Byte");
        expect(m_spp.byte != m_epp.byte || m_spp.bit <= m_epp.bit,
               "SPP Bit must be smaller/equal EPP Bit");
    }

    Position m_spp;
    Position m_epp;
    int m_line;
    ProfileReport& m_report;
};

} // namespace

void checkPositions(const ProfileParameter& parameter, int line, ProfileReport& report)
{
    Check(parameter, line, report).run(arincTypes.at(parameter.dtc).positionRule);
}

} // namespace zul
