#include "profile/PositionCheck.h"

#include "profile/DataTypes.h"
#include "profile/ProfileNumbers.h"

namespace zul {

namespace {

struct Position
{
    int byte;
    int bit;

    bool equals(int otherByte, int otherBit) const { return byte == otherByte && bit == otherBit; }
    bool isInFrame() const { return byte >= 0 && byte <= 7 && bit >= 0 && bit <= 7; }
};

// One parameter's positions and where they are complained of.
class Check
{
public:
    Check(const ProfileParameter& parameter, int line, ProfileReport& report)
        : m_spp{asSigned(parameter.sppByte), asSigned(parameter.sppBit)},
          m_epp{asSigned(parameter.eppByte), asSigned(parameter.eppBit)},
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
            expect(distance() == 1, "SPP Byte must be EPP Byte + 1");
            expect(m_spp.byte > 0 && m_spp.byte <= 7 && m_spp.byte % 2 == 1,
                   "SPP Byte must be 1,3,5,7");
            wholeBytes();
            break;
        case PositionRule::FourBytes:
            expect(distance() == 3, "SPP Byte must be EPP Byte + 3");
            expect(m_spp.byte == 3 || m_spp.byte == 7, "SPP Byte must be 3,7");
            wholeBytes();
            break;
        case PositionRule::EightBytes:
            expect(m_spp.equals(7, 0) && m_epp.equals(0, 7), "Must be 7.0/0.7");
            break;
        case PositionRule::Free:
            anyBits();
            break;
        }
    }

private:
    // In bytes, from EPP to SPP.
    std::int64_t distance() const { return std::int64_t{m_spp.byte} - m_epp.byte; }

    void expect(bool holds, const char* ending)
    {
        if (!holds) {
            m_report.error(m_line, "Invalid SPP/EPP combination %d.%d/%d.%d . %s", m_spp.byte,
                           m_spp.bit, m_epp.byte, m_epp.bit, ending);
        }
    }

    void wholeBytes()
    {
        expect(m_spp.bit == 0, "SPP Bit must be 0");
        expect(m_epp.bit == 7, "EPP Bit must be 7");
    }

    void zero()
    {
        if (!m_spp.equals(0, 0)) {
            m_report.error(m_line, "Invalid SPP %d.%d . Must be 0 fo NODATA.", m_spp.byte,
                           m_spp.bit);
        }
        if (!m_epp.equals(0, 0)) {
            m_report.error(m_line, "Invalid EPP %d.%d . Must be 0 fo NODATA.", m_epp.byte,
                           m_epp.bit);
        }
    }

    void anyBits()
    {
        if (!m_spp.isInFrame()) {
            m_report.error(m_line, "Invalid SPP %d.%d . Must be in range [0..7].", m_spp.byte,
                           m_spp.bit);
        }
        if (!m_epp.isInFrame()) {
            m_report.error(m_line, "Invalid EPP %d.%d . Must be in range [0..7].", m_epp.byte,
                           m_epp.bit);
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
