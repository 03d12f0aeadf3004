#include "modules/virtual/FlightScenario.h"

#include "modules/virtual/FlightEncoding.h"

namespace canvirtual {

namespace {

constexpr double redundantStep = 0.0005;

bool beginsFrame(std::size_t row)
{
    return row == 0 || arincParameters.at(row).id != arincParameters.at(row - 1).id;
}

/// What the source of redundancy channel `rci` makes of `value`.
double redundantValue(const ArincParameter& parameter, double value)
{
    const std::uint32_t rci = parameter.id & 3U;
    const bool analogue = parameter.type == ArincType::Float || arincByteCount(parameter.type) == 2;
    return analogue ? value + rci * redundantStep * (parameter.max - parameter.min) : value;
}

/// The letter of the flight number that stands at the parameter's place.
double letterAt(const BytePosition& position)
{
    return static_cast<unsigned char>(flightNumber[position.byte]);
}

} // namespace

FlightScenario::FlightScenario(BusTime start)
    : PeriodicScenario(start, [] {
          std::vector<Line> lines;
          for (std::size_t row = 0; row < arincParameters.size(); ++row) {
              const ArincParameter& parameter = arincParameters.at(row);
              if (!beginsFrame(row)) {
                  continue;
              }
              Line line;
              line.frame.id = parameter.id;
              line.frame.mode = FrameMode::Extended;
              line.frame.byteCount = static_cast<std::uint32_t>(parameter.byteCount);
              line.period = second / parameter.rateHz;
              lines.push_back(line);
          }
          for (const CanasParameter& parameter : canasParameters) {
              Line line;
              line.frame.id = parameter.id;
              line.frame.byteCount = canasByteCount(parameter.type);
              line.period = second / parameter.rateHz;
              lines.push_back(line);
          }
          return lines;
      }())
{
    for (std::size_t row = 0; row < arincParameters.size(); ++row) {
        if (beginsFrame(row)) {
            m_firstRows.push_back(row);
        }
    }
    m_firstRows.push_back(arincParameters.size());
}

void FlightScenario::fill(std::size_t line, std::uint32_t count, BusTime elapsed, BusFrame& frame)
{
    const double seconds = toSeconds(elapsed);
    const std::size_t arincFrames = m_firstRows.size() - 1;
    if (line >= arincFrames) {
        encodeCanas(canasParameters.at(line - arincFrames), count, seconds, frame);
        return;
    }
    for (std::size_t row = m_firstRows[line]; row < m_firstRows[line + 1]; ++row) {
        const ArincParameter& parameter = arincParameters.at(row);
        double value = redundantValue(parameter, parameter.value(seconds));
        if (parameter.type == ArincType::AChar) {
            value = letterAt(parameter.position);
        } else if (parameter.type == ArincType::Opaque) {
            value = count;
        }
        encodeArinc(parameter, value, frame);
    }
}

} // namespace canvirtual
