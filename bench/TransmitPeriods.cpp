#include "bench/TransmitPeriods.h"

#include "gui/traffic/DialogTransmit.h"
#include "message/MessageCan.h"
#include "message/MessageContainer.h"
#include "project/InterfaceObject.h"
#include "project/ObjectTransmit.h"

#include <QEventLoop>
#include <QTimer>

#include <algorithm>
#include <chrono>
#include <cstdio>
#include <map>
#include <vector>

namespace bench {

namespace {

constexpr double millisecondsPerSecond = 1'000.0;

/// Stands in for an interface: it notes how long after its predecessor each frame of a line comes.
class PeriodProbe : public InterfaceObject
{
public:
    ObjectWindow* createDialog(QWidget*) override { return nullptr; }
    bool poll() override { return true; }
    DeviceStatus status() override { return DeviceStatus::Closed; }
    bool disconnect() override { return true; }

    void receive(MessageContainer& batch) override
    {
        const auto now = std::chrono::steady_clock::now();
        for (const auto& message : batch.messages()) {
            const auto& frame = static_cast<const zul::MessageCan&>(*message);
            const auto before = m_last.find(frame.id());
            if (before != m_last.end()) {
                const std::chrono::duration<double, std::milli> period = now - before->second;
                m_periods.push_back(period.count());
            }
            m_last[frame.id()] = now;
        }
    }

    void report(const char* title)
    {
        if (m_periods.empty()) {
            return;
        }
        std::sort(m_periods.begin(), m_periods.end());
        const auto last = static_cast<double>(m_periods.size() - 1);
        const auto percentile = [&](double share) {
            return m_periods[static_cast<std::size_t>(share * last + 0.5)];
        };
        std::printf("%-24s %8zu %9.3f %9.3f %9.3f %9.3f\n", title, m_periods.size(),
                    m_periods.front(), percentile(0.5), percentile(0.99), m_periods.back());
        std::fflush(stdout);
    }

private:
    std::map<std::uint32_t, std::chrono::steady_clock::time_point> m_last;
    std::vector<double> m_periods; // of all lines, in milliseconds
};

void measure(const char* title, int rate, int lines, double seconds)
{
    ObjectTransmit object;
    PeriodProbe probe;
    object.addOutput(&probe);
    for (int i = 0; i < lines; ++i) {
        auto line = std::make_unique<SendMsg>();
        line->id = static_cast<std::uint32_t>(i);
        line->byteCount = 8;
        line->rate = rate;
        line->running = 1;
        object.lines().push_back(std::move(line));
    }
    gui::DialogTransmit window(&object, nullptr);
    window.show();
    QEventLoop loop;
    QTimer::singleShot(static_cast<int>(seconds * millisecondsPerSecond), &loop, &QEventLoop::quit);
    loop.exec();
    probe.report(title);
}

} // namespace

void measureTransmitPeriods(double seconds)
{
    std::printf("Periods in ms            %8s %9s %9s %9s %9s\n", "periods", "least", "median",
                "99 %", "most");
    measure("1 line of 1 ms", 1, 1, seconds);
    measure("1 line of 10 ms", 10, 1, seconds);
    measure("1 line of 100 ms", 100, 1, seconds);
    measure("64 lines of 10 ms", 10, 64, seconds);
}

} // namespace bench
