#include "core/moon.h"

#include <algorithm>
#include <cmath>
#include <cstdlib>
#include <limits>

#include "resources/strings.h"

namespace orbisol {
namespace {

constexpr double kRadians = 0.017453292519943295;  // radians in a degree
constexpr double kDegrees = 57.29577951308232;     // degrees in a radian

// Sine and cosine of an angle. The perturbations need the sines of many sums of few angles; these follow by
// products, where each call of sin would cost ten times as much.
struct SinCos {
  double sin;
  double cos;
};

SinCos SinCosOf(double degrees) { return {std::sin(degrees * kRadians), std::cos(degrees * kRadians)}; }
SinCos operator+(SinCos a, SinCos b) {
  return {a.sin * b.cos + a.cos * b.sin, a.cos * b.cos - a.sin * b.sin};
}
SinCos operator-(SinCos a, SinCos b) {
  return {a.sin * b.cos - a.cos * b.sin, a.cos * b.cos + a.sin * b.sin};
}

// Returns the angle moved by up to 3.4 degrees, right to the last bit but one: what the series leave out is
// below 3e-17.
SinCos Nudged(SinCos angle, double degrees) {
  const double r = degrees * kRadians;  // [-0.06, 0.06]
  const double square = r * r;
  const double sine = r * (1.0 - square * (1.0 / 6.0 - square * (1.0 / 120.0 - square / 5040.0)));
  const double cosine =
      1.0 - square * (0.5 - square * (1.0 / 24.0 - square * (1.0 / 720.0 - square / 40320.0)));
  return angle + SinCos{sine, cosine};
}

// Returns the angle in [0, 360]. A negative angle too small for the sum gives 360 itself.
double Reduce(double degrees) { return degrees - 360.0 * std::floor(degrees / 360.0); }

// Orbital elements: P. Schlyter, "Computing planetary positions". They are linear in the time t, in days
// from the beginning of 31 December 1999 UT. For the days shown t is [-2191119.5, 730485.5], and no angle
// exceeds 2.9e7 degrees, where neighboring doubles are 4e-9 degrees apart.
struct Element {
  double atStart;  // degrees
  double perDay;   // degrees a day

  double At(double t) const { return atStart + perDay * t; }
};

constexpr Element kSunPerihelion{282.9404, 4.70935e-5};
constexpr Element kSunAnomaly{356.047, 0.9856002585};
constexpr Element kSunEccentricity{0.016709, -1.151e-9};  // a ratio; [0.0158, 0.0193] for the days shown
constexpr Element kMoonNode{125.1228, -0.0529538083};
constexpr Element kMoonPerigee{318.0634, 0.1643573223};
constexpr Element kMoonAnomaly{115.3654, 13.0649929509};
constexpr double kMoonEccentricity = 0.0549;
constexpr double kMoonEccentricityInDegrees = 3.1455382952682194;
constexpr double kMoonMinorAxis = 0.99698599;  // square of the ratio of the axes, 1 - e * e
constexpr double kMoonInclination = 5.1454;    // degrees

// Mean longitude of the Moon less that of the Sun.
constexpr Element kMeanLead{kMoonNode.atStart + kMoonPerigee.atStart + kMoonAnomaly.atStart -
                                kSunAnomaly.atStart - kSunPerihelion.atStart,
                            kMoonNode.perDay + kMoonPerigee.perDay + kMoonAnomaly.perDay -
                                kSunAnomaly.perDay - kSunPerihelion.perDay};

// Place seen from the Earth, in units of the orbit's semi-major axis, on two axes of the ecliptic: a
// direction whose angle counts from the first.
struct Place {
  double along;
  double across;
};

// Returns the angle from the direction `from` to the direction `to`, in degrees [-180, 180]. One arc tangent
// does where the angles of both would cost one each.
double DegreesBetween(Place from, Place to) {
  const double sine = from.along * to.across - from.across * to.along;
  const double cosine = from.along * to.along + from.across * to.across;
  return std::atan2(sine, cosine) * kDegrees;
}

// Returns the place of the Sun, counted from its perihelion.
Place SunPlace(double t, SinCos anomaly) {
  const double e =
      kSunEccentricity.At(t);  // above 1 two million years ago; the root is then a NaN, and no phase
  const SinCos eccentric = Nudged(anomaly, e * kDegrees * anomaly.sin * (1.0 + e * anomaly.cos));
  return {eccentric.cos - e, std::sqrt(1.0 - e * e) * eccentric.sin};
}

// Solves Kepler's equation and returns the eccentric anomaly. The orbit is so round that the first guess is
// never more than 0.0048 degrees off, and one correction by Newton's method leaves less than a millionth.
SinCos MoonEccentricAnomaly(SinCos anomaly) {
  const double guess = kMoonEccentricityInDegrees * anomaly.sin * (1.0 + kMoonEccentricity * anomaly.cos);
  const SinCos eccentric = Nudged(anomaly, guess);
  const double correction = (guess - kMoonEccentricityInDegrees * eccentric.sin) /
                            (1.0 - kMoonEccentricity * eccentric.cos);  // divided by [0.945, 1.055]
  return Nudged(eccentric, -correction);
}

// Returns the place of the Moon on its ellipse, projected on the ecliptic and counted from its node.
Place UnperturbedMoonPlace(SinCos toPerigee, SinCos anomaly) {
  static const double axes = std::sqrt(kMoonMinorAxis);
  static const double tilt = SinCosOf(kMoonInclination).cos;
  const SinCos eccentric = MoonEccentricAnomaly(anomaly);
  const double x = eccentric.cos - kMoonEccentricity;
  const double y = axes * eccentric.sin;
  return {x * toPerigee.cos - y * toPerigee.sin, (x * toPerigee.sin + y * toPerigee.cos) * tilt};
}

// Returns what the Sun adds to the Moon's longitude, in degrees [-2.5, 2.5]: the twelve greatest terms.
double Perturbations(SinCos moon, SinCos sun, SinCos lead, SinCos fromNode) {
  const SinCos lead2 = lead + lead;
  const SinCos moonLessLead2 = moon - lead2;  // angle of the evection, the greatest term
  return -1.274 * moonLessLead2.sin + 0.658 * lead2.sin - 0.186 * sun.sin -
         0.059 * (moonLessLead2 + moon).sin - 0.057 * (moonLessLead2 + sun).sin + 0.053 * (moon + lead2).sin +
         0.046 * (lead2 - sun).sin + 0.041 * (moon - sun).sin - 0.035 * lead.sin - 0.031 * (moon + sun).sin -
         0.015 * (fromNode + fromNode - lead2).sin + 0.011 * (moonLessLead2 - lead2).sin;
}

// Returns whether the day of `angle` is nearer to the phase angle than its two neighbors. Of two equally near
// days the earlier one counts as the nearest. Angles are [0, 359], so that products stay below 360 * 360.
bool IsNearestDay(int before, int angle, int after, int phase) {
  int center = phase;
  if (phase == 0) {  // turned to the opposite side, where angles do not jump from 359 to 0
    center = 180;
    before = (before + 180) % 360;
    angle = (angle + 180) % 360;
    after = (after + 180) % 360;
  }
  const int u = before - center;
  const int w = after - center;
  const int s = angle - center;
  if (u * w > 0) return false;  // the phase is not reached between yesterday and tomorrow
  if (s * u >= 0) return std::abs(s) <= std::abs(w);
  return std::abs(s) < std::abs(u);
}

// Phase that may fall on the day of an angle, with its own angle.
struct Candidate {
  MoonPhase phase;  // kNoPhase when there is none
  int angle;
};

Candidate CandidateOf(int angle) {
  if (angle < 10 || angle > 350) return {kNewMoon, 0};
  if (angle >= 261 && angle <= 279) return {kFirstQuarter, 270};
  if (angle >= 171 && angle <= 189) return {kFullMoon, 180};
  if (angle >= 81 && angle <= 99) return {kLastQuarter, 90};
  return {kNoPhase, 0};
}

// Elongations of the last noons asked for, each computed once: four in a row have different places.
class CNoonElongations {
 public:
  int At(std::int64_t dayNumber) {
    Noon& noon = m_noons[static_cast<std::size_t>(dayNumber & 3)];
    if (noon.dayNumber != dayNumber) noon = {dayNumber, MoonElongation(MoonTimeOfNoon(dayNumber))};
    return noon.angle;
  }

 private:
  struct Noon {
    std::int64_t dayNumber = std::numeric_limits<std::int64_t>::min();
    int angle = 0;
  };
  Noon m_noons[4];
};

// Returns whether the day of a candidate is nearer to the phase angle than its two neighbors. From one noon
// to the next the angle falls by 10 to 15 over the years shown, so that most days need no neighbor: one up to
// 4 off is the nearest, and one more than 7 off is not.
constexpr int kMostOffPhase = 7;
bool IsNearestDay(CNoonElongations& noons, std::int64_t dayNumber, int phase) {
  const int angle = noons.At(dayNumber);
  const int apart = std::abs(angle - phase);
  const int off = std::min(apart, 360 - apart);
  if (off <= 4 || off > kMostOffPhase) return off <= 4;
  return IsNearestDay(noons.At(dayNumber - 1), angle, noons.At(dayNumber + 1), phase);
}

constexpr int kLeastGap = 6;  // least number of days from one phase to the next

// Returns whether the mean Moon is too far from all phase angles for the true one to be near.
bool IsFarFromPhases(double t) {
  constexpr double kMostFromMean = 12.0;  // degrees between true and mean Moon, over the whole range shown
  constexpr double kCut = 1.0;            // angles are cut to whole degrees
  constexpr double kFar = 20.5;
  static_assert(kFar > kMostFromMean + kMostOffPhase + kCut && kFar < 45.0);
  const double lead = kMeanLead.At(t);
  const double fromPhase = lead - 90.0 * std::floor(lead / 90.0);  // [0, 90]
  return fromPhase > kFar && fromPhase < 90.0 - kFar;
}

}  // namespace

int MoonElongation(double t) {
  const double sunPerihelion = kSunPerihelion.At(t);
  const double sunAnomaly = Reduce(kSunAnomaly.At(t));
  const double node = kMoonNode.At(t);
  const double perigee = kMoonPerigee.At(t);
  const double moonAnomaly = Reduce(kMoonAnomaly.At(t));
  const double lead = perigee + moonAnomaly + node - sunAnomaly - sunPerihelion;

  const SinCos sun = SinCosOf(sunAnomaly);
  const SinCos moon = SinCosOf(moonAnomaly);
  const SinCos toPerigee = SinCosOf(perigee);
  const double unperturbed = DegreesBetween(UnperturbedMoonPlace(toPerigee, moon), SunPlace(t, sun));
  const double elongation =
      Reduce(unperturbed + sunPerihelion - node - Perturbations(moon, sun, SinCosOf(lead), toPerigee + moon));
  return elongation < 360.0 ? static_cast<int>(elongation) : 0;  // 0 also for a NaN
}

bool IsPhaseDay(double t, int angle, int phase) {
  return IsNearestDay(MoonElongation(t - 1.0), angle, MoonElongation(t + 1.0), phase);
}

MoonPhase MoonPhaseOfDay(const Date& date) {
  MoonPhase phase = kNoPhase;
  MoonPhasesOfDays(date.DayNumber(), {&phase, 1});
  return phase;
}

void MoonPhasesOfDays(int firstDayNumber, std::span<MoonPhase> phases) {
  CNoonElongations noons;
  for (std::size_t i = 0; i < phases.size(); ++i) {
    phases[i] = kNoPhase;
    const std::int64_t dayNumber = firstDayNumber + static_cast<std::int64_t>(i);
    if (IsFarFromPhases(MoonTimeOfNoon(dayNumber))) continue;
    const Candidate candidate = CandidateOf(noons.At(dayNumber));
    if (candidate.phase != kNoPhase && IsNearestDay(noons, dayNumber, candidate.angle)) {
      phases[i] = candidate.phase;
      for (int next = 1; next < kLeastGap && i + 1 < phases.size(); ++next) phases[++i] = kNoPhase;
    }
  }
}

std::u16string_view MoonPhaseName(MoonPhase phase) {
  if (phase == kNoPhase) return {};
  return StringText(kTextNewMoon + static_cast<int>(phase) - static_cast<int>(kNewMoon));
}

}  // namespace orbisol
