#include "tests/support/plain_moon.h"

#include <cmath>
#include <cstdlib>

namespace orbisol::plain {
namespace {

constexpr double kDegree = 0.017453292519943295;
constexpr double kRadian = 57.29577951308232;

double Sin(double degrees) { return std::sin(degrees * kDegree); }
double Cos(double degrees) { return std::cos(degrees * kDegree); }
double Atan2(double y, double x) { return std::atan2(y, x) * kRadian; }
double Reduce(double degrees) { return degrees - 360 * std::floor(degrees / 360); }

constexpr int kPhaseOfCode[] = {-1, 0, 270, 180, 90};

// Returns the only phase that a day with this elongation can have.
int CodeNear(int angle) {
  if (angle < 10 || angle > 350) return 1;
  if (angle >= 261 && angle <= 279) return 2;
  if (angle >= 171 && angle <= 189) return 3;
  if (angle >= 81 && angle <= 99) return 4;
  return 0;
}

// Returns whether `phase` (0, 90, 180 or 270) belongs to the day whose noon has `angle`, between the noons of
// its neighbors.
bool IsPhaseDay(int before, int angle, int after, int phase) {
  int center = phase;
  if (phase == 0) {  // turned to the opposite side, where angles do not jump from 359 to 0
    before = (before + 180) % 360;
    angle = (angle + 180) % 360;
    after = (after + 180) % 360;
    center = 180;
  }
  const int u = before - center;
  const int w = after - center;
  const int s = angle - center;
  if (u * w > 0) return false;
  if (s * u >= 0) return std::abs(s) <= std::abs(w);
  return std::abs(s) < std::abs(u);
}

}  // namespace

int MoonElongation(double t) {
  // Sun
  const double e = 0.016709 - 1.151e-9 * t;
  const double ws = 282.9404 + 4.70935e-5 * t;
  const double Ms = 356.047 + 0.9856002585 * t;
  const double Es = Ms + e * kRadian * Sin(Ms) * (1 + e * Cos(Ms));
  const double xs = Cos(Es) - e;
  const double ys = std::sqrt(1 - e * e) * Sin(Es);
  const double sun = Reduce(Atan2(ys, xs) + ws);

  // Moon
  const double N = 125.1228 - 0.0529538083 * t;
  const double w = 318.0634 + 0.1643573223 * t;
  const double M = 115.3654 + 13.0649929509 * t;
  double E = M + 3.1455382952682194 * Sin(M) * (1 + 0.0549 * Cos(M));
  for (bool close = false; !close;) {
    const double next = E - (E - 3.1455382952682194 * Sin(E) - M) / (1 - 0.0549 * Cos(E));
    close = std::abs(next - E) < 0.005;
    E = next;
  }
  const double x = 60.2666 * (Cos(E) - 0.0549);
  const double y = 60.2666 * std::sqrt(0.99698599) * Sin(E);
  const double r = std::sqrt(x * x + y * y);
  const double v = Atan2(y, x);
  const double X = r * (Cos(N) * Cos(v + w) - Sin(N) * Sin(v + w) * Cos(5.1454));
  const double Y = r * (Sin(N) * Cos(v + w) + Cos(N) * Sin(v + w) * Cos(5.1454));
  double moon = Atan2(Y, X);

  // Perturbations
  const double D = (N + w + M) - (Ms + ws);
  const double F = (N + w + M) - N;
  moon += -1.274 * Sin(M - 2 * D) + 0.658 * Sin(2 * D) - 0.186 * Sin(Ms) - 0.059 * Sin(2 * M - 2 * D) -
          0.057 * Sin(M - 2 * D + Ms) + 0.053 * Sin(M + 2 * D) + 0.046 * Sin(2 * D - Ms) +
          0.041 * Sin(M - Ms) - 0.035 * Sin(D) - 0.031 * Sin(M + Ms) - 0.015 * Sin(2 * F - 2 * D) +
          0.011 * Sin(M - 4 * D);
  return static_cast<int>(Reduce(sun - Reduce(moon)));
}

int MoonPhaseOfDayNumber(int dayNumber) {
  const double t = (dayNumber - 2451544) + 0.5;
  const int angle = MoonElongation(t);
  const int code = CodeNear(angle);
  if (code == 0) return 0;
  return IsPhaseDay(MoonElongation(t - 1), angle, MoonElongation(t + 1), kPhaseOfCode[code]) ? code : 0;
}

}  // namespace orbisol::plain
