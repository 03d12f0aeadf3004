#include "modules/virtual/FlightSignals.h"

#include <algorithm>
#include <cmath>

namespace canvirtual::signal {

namespace {

constexpr double pi = 3.14159265358979323846;
constexpr double gravity = 9.80665;

/// A sine of the given period in seconds, shifted by `phase` periods.
double wave(double t, double period, double phase = 0.0)
{
    return std::sin(2.0 * pi * (t / period + phase));
}

/// 1 during the first `on` seconds of every `period`, else 0.
double pulse(double t, double period, double on)
{
    return std::fmod(t, period) < on ? 1.0 : 0.0;
}

/// The decimal digit of `value` that stands for `unit`, counted modulo `range`.
double digit(double value, double unit, double range)
{
    return std::floor(std::fmod(std::floor(value / unit), range));
}

double degrees(double radians)
{
    return radians * 180.0 / pi;
}

double radians(double degrees)
{
    return degrees * pi / 180.0;
}

// The landing gear goes down for 20 s of every 90 s and takes 6 s each way.
constexpr double gearPeriod = 90.0;
constexpr double gearDown = 20.0;
constexpr double gearTravel = 6.0;

} // namespace

double pitchAngle(double t)
{
    return 3.0 + 4.0 * wave(t, 60.0) + 0.4 * wave(t, 3.7);
}

double rollAngle(double t)
{
    return 22.0 * wave(t, 45.0) + 0.6 * wave(t, 4.3);
}

double heading(double t)
{
    // The bank angle's sine turns the aircraft back and forth around a heading of 90 degrees.
    return 90.0 - 60.0 * wave(t, 45.0, 0.25);
}

double pitchRate(double t)
{
    return radians(4.0 * 2.0 * pi / 60.0 * wave(t, 60.0, 0.25));
}

double rollRate(double t)
{
    return radians(22.0 * 2.0 * pi / 45.0 * wave(t, 45.0, 0.25));
}

double yawRate(double t)
{
    return gravity * std::tan(radians(rollAngle(t))) / trueAirspeed(t);
}

double normalAcceleration(double t)
{
    return gravity / std::cos(radians(rollAngle(t))) + 0.15 * wave(t, 1.3);
}

double longitudinalAcceleration(double t)
{
    return 0.8 * wave(t, 60.0, 0.4) + 0.05 * wave(t, 1.1);
}

double lateralAcceleration(double t)
{
    return 0.3 * wave(t, 45.0, 0.1) + 0.05 * wave(t, 0.9);
}

double indicatedAirspeed(double t)
{
    return 95.0 - 9.0 * wave(t, 60.0);
}

double trueAirspeed(double t)
{
    // About 2 percent more for every 300 m.
    return indicatedAirspeed(t) * (1.0 + altitude(t) / 15'000.0);
}

double groundSpeed(double t)
{
    return trueAirspeed(t) + 8.0 * wave(t, 200.0);
}

double mach(double t)
{
    return trueAirspeed(t) / std::sqrt(1.4 * 287.05 * (airTemperature(t) + 273.15));
}

double altitude(double t)
{
    return 2'400.0 - 450.0 * wave(t, 60.0, 0.25);
}

double verticalSpeed(double t)
{
    return 450.0 * 2.0 * pi / 60.0 * wave(t, 60.0);
}

double airTemperature(double t)
{
    return 15.0 - 0.0065 * altitude(t);
}

double staticPressure(double t)
{
    return 101'325.0 * std::pow(1.0 - 2.25577e-5 * altitude(t), 5.25588);
}

double latitude(double t)
{
    return 53.55 + 0.02 * wave(t, 45.0);
}

double longitude(double t)
{
    return 9.99 + 0.00125 * std::fmod(t, 3'600.0);
}

double satellites(double t)
{
    return 10.0 + std::round(2.0 * wave(t, 40.0));
}

double aileron(double t)
{
    return 6.0 * wave(t, 45.0, 0.25) + 0.8 * wave(t, 2.1);
}

double elevator(double t)
{
    return -2.0 + 3.0 * wave(t, 60.0, 0.25) + 0.5 * wave(t, 1.7);
}

double rudder(double t)
{
    return 2.0 * wave(t, 45.0, 0.2);
}

double flaps(double t)
{
    return 15.0 * pulse(t, gearPeriod, gearDown + 10.0);
}

double gearLever(double t)
{
    return pulse(t, gearPeriod, gearDown);
}

double gearLocked(double t)
{
    const double phase = std::fmod(t, gearPeriod);
    return phase >= gearTravel && phase < gearDown ? 1.0 : 0.0;
}

double gearInTransit(double t)
{
    const double phase = std::fmod(t, gearPeriod);
    const bool lowering = phase < gearTravel;
    const bool raising = phase >= gearDown && phase < gearDown + gearTravel;
    return lowering || raising ? 1.0 : 0.0;
}

double autopilotEngaged(double t)
{
    return 1.0 - pulse(t, 120.0, 15.0);
}

double autopilotMode(double t)
{
    return digit(t, 30.0, 4.0);
}

double masterCaution(double t)
{
    return pulse(t, 50.0, 4.0);
}

double n1Left(double t)
{
    return 84.0 + 6.0 * wave(t, 60.0, 0.1) + 0.2 * wave(t, 0.8);
}

double n1Right(double t)
{
    return 83.6 + 6.0 * wave(t, 60.0, 0.11) + 0.2 * wave(t, 0.7);
}

double n2Left(double t)
{
    return 10.0 + 0.98 * n1Left(t);
}

double n2Right(double t)
{
    return 10.0 + 0.98 * n1Right(t);
}

double exhaustTemperatureLeft(double t)
{
    return 620.0 + 7.0 * (n1Left(t) - 84.0);
}

double exhaustTemperatureRight(double t)
{
    return 612.0 + 7.0 * (n1Right(t) - 84.0);
}

double oilTemperature(double t)
{
    return 82.0 + 4.0 * wave(t, 150.0);
}

double oilPressure(double t)
{
    return 420'000.0 + 25'000.0 * wave(t, 60.0, 0.1);
}

double fuelFlowLeft(double t)
{
    return 310.0 + 12.0 * (n1Left(t) - 84.0);
}

double fuelFlowRight(double t)
{
    return 306.0 + 12.0 * (n1Right(t) - 84.0);
}

double fuelLeft(double t)
{
    return 820.0 - std::fmod(t, 3'600.0) * 0.086;
}

double fuelRight(double t)
{
    return 812.0 - std::fmod(t, 3'600.0) * 0.085;
}

double engineState(double t)
{
    return std::min(2.0, digit(t, 10.0, 60.0)); // off, starting, running; again after 10 minutes
}

double busVoltage(double t)
{
    return 28.1 + 0.2 * wave(t, 7.0) + 0.05 * wave(t, 0.6);
}

double batteryCurrent(double t)
{
    return -4.0 + 12.0 * wave(t, 25.0);
}

double batteryTemperature(double t)
{
    return 24.0 + 3.0 * wave(t, 300.0);
}

double generatorOnline(double t)
{
    return 1.0 - pulse(t, 75.0, 3.0);
}

double hydraulicPressure(double t)
{
    return 20.6e6 - 1.5e6 * gearInTransit(t) + 0.1e6 * wave(t, 5.0);
}

double cabinAltitude(double t)
{
    return 0.45 * altitude(t);
}

double utcSeconds(double t)
{
    return std::fmod(12.0 * 3'600.0 + t, 86'400.0);
}

double hoursTens(double t)
{
    return digit(utcSeconds(t), 36'000.0, 10.0);
}

double hoursOnes(double t)
{
    return digit(utcSeconds(t), 3'600.0, 10.0);
}

double minutesTens(double t)
{
    return digit(utcSeconds(t), 600.0, 6.0);
}

double minutesOnes(double t)
{
    return digit(utcSeconds(t), 60.0, 10.0);
}

double secondsTens(double t)
{
    return digit(utcSeconds(t), 10.0, 6.0);
}

double secondsOnes(double t)
{
    return digit(utcSeconds(t), 1.0, 10.0);
}

double trackError(double t)
{
    return degrees(0.03 * wave(t, 80.0));
}

double zero(double /*t*/)
{
    return 0.0;
}

double one(double /*t*/)
{
    return 1.0;
}

} // namespace canvirtual::signal
