#pragma once

namespace canvirtual {

/// A quantity of the demonstration flight as a function of the seconds since its start. Pure; all
/// are smooth and periodic, in the unit that the table of parameters names.
using Signal = double (*)(double seconds);

/// The aircraft flies gentle turns and climbs; where quantities belong together (bank and turn
/// rate, speeds and Mach number, N1 and fuel flow) they are computed from one another.
namespace signal {
double pitchAngle(double t);
double rollAngle(double t);
double heading(double t);
double pitchRate(double t);
double rollRate(double t);
double yawRate(double t);
double normalAcceleration(double t);
double longitudinalAcceleration(double t);
double lateralAcceleration(double t);
double indicatedAirspeed(double t);
double trueAirspeed(double t);
double groundSpeed(double t);
double mach(double t);
double altitude(double t);
double verticalSpeed(double t);
double airTemperature(double t);
double staticPressure(double t);
double latitude(double t);
double longitude(double t);
double satellites(double t);
double aileron(double t);
double elevator(double t);
double rudder(double t);
double flaps(double t);
double gearLever(double t);
double gearLocked(double t);
double gearInTransit(double t);
double autopilotEngaged(double t);
double autopilotMode(double t);
double masterCaution(double t);
double n1Left(double t);
double n1Right(double t);
double n2Left(double t);
double n2Right(double t);
double exhaustTemperatureLeft(double t);
double exhaustTemperatureRight(double t);
double oilTemperature(double t);
double oilPressure(double t);
double fuelFlowLeft(double t);
double fuelFlowRight(double t);
double fuelLeft(double t);
double fuelRight(double t);
double engineState(double t);
double busVoltage(double t);
double batteryCurrent(double t);
double batteryTemperature(double t);
double generatorOnline(double t);
double hydraulicPressure(double t);
double cabinAltitude(double t);
double utcSeconds(double t);
double hoursTens(double t);
double hoursOnes(double t);
double minutesTens(double t);
double minutesOnes(double t);
double secondsTens(double t);
double secondsOnes(double t);
double trackError(double t);
double zero(double t);
double one(double t);
} // namespace signal

} // namespace canvirtual
