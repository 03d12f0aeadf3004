#include "modules/virtual/FdScenario.h"

#include "modules/virtual/Payload.h"

#include <array>

namespace canvirtual {

namespace {

struct FdLine
{
    std::uint32_t id;
    FrameMode mode;
    std::uint32_t byteCount;
    int rateHz;
};

// The 29-bit identifiers are ARINC 825 ones of the user-defined channel, function code 60.
constexpr std::array<FdLine, 12> fdLines = {{
    {0x120, FrameMode::Standard, 8, 50},
    {0x130, FrameMode::StandardFd, 12, 50},
    {0x131, FrameMode::StandardFd, 16, 20},
    {0x132, FrameMode::StandardFd, 64, 10},
    {0x140, FrameMode::StandardFdBrs, 12, 100},
    {0x141, FrameMode::StandardFdBrs, 24, 50},
    {0x142, FrameMode::StandardFdBrs, 64, 50},
    {0x15E00400, FrameMode::Extended, 8, 20},
    {0x15E00500, FrameMode::ExtendedFd, 20, 20},
    {0x15E00504, FrameMode::ExtendedFd, 48, 10},
    {0x15E00600, FrameMode::ExtendedFdBrs, 32, 50},
    {0x15E00604, FrameMode::ExtendedFdBrs, 64, 100},
}};

} // namespace

FdScenario::FdScenario(BusTime start)
    : PeriodicScenario(start, [] {
          std::vector<Line> lines;
          for (const FdLine& fdLine : fdLines) {
              Line line;
              line.frame.id = fdLine.id;
              line.frame.mode = fdLine.mode;
              line.frame.byteCount = fdLine.byteCount;
              line.period = second / fdLine.rateHz;
              lines.push_back(line);
          }
          return lines;
      }())
{
}

void FdScenario::fill(std::size_t /*line*/, std::uint32_t count, BusTime elapsed, BusFrame& frame)
{
    putBigEndian32(frame, 0, count);
    putBigEndian32(frame, 4, static_cast<std::uint32_t>(elapsed / millisecond));
    for (std::uint32_t index = maxClassicBytes; index < frame.byteCount; ++index) {
        frame.data.at(index) = static_cast<std::uint8_t>(count + index);
    }
}

} // namespace canvirtual
