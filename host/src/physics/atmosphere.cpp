#include "physics/atmosphere.h"

#include <algorithm>
#include <array>
#include <cmath>

namespace hullhost::physics {

namespace {

constexpr double kEarthRadius = 6356.766e3; // the standard's reference radius [m]
constexpr double kG0 = 9.80665;
constexpr double kGasConstant = 8.31432;          // [J/(mol K)]
constexpr double kSeaLevelMolarMass = 28.9644e-3; // [kg/mol]
constexpr double kGamma = 1.4;

// --- 0 to 86 km: geopotential layers ---------------------------------------
struct Layer {
    double base;      // geopotential altitude [m']
    double tempBase;  // molecular temperature [K]
    double lapse;     // [K/m']
    double pressBase; // [Pa]
};

constexpr std::array<Layer, 7> kLayers{{
    {0.0, 288.15, -6.5e-3, 101325.0},
    {11000.0, 216.65, 0.0, 22632.06},
    {20000.0, 216.65, 1.0e-3, 5474.889},
    {32000.0, 228.65, 2.8e-3, 868.0187},
    {47000.0, 270.65, 0.0, 110.9063},
    {51000.0, 270.65, -2.8e-3, 66.93887},
    {71000.0, 214.65, -2.0e-3, 3.956420},
}};

// Ratio of molecular weight to its sea-level value from 80 to 86 km, every
// 500 m: dissociation starts to lower it.
constexpr std::array<double, 13> kMolarMassRatio{1.0,      0.999996, 0.999989, 0.999971, 0.999941,
                                                 0.999909, 0.999870, 0.999829, 0.999786, 0.999741,
                                                 0.999694, 0.999641, 0.999579};

double MolarMassRatio(double z) {
    if (z <= 80000.0) {
        return 1.0;
    }
    const double s = std::fmin((z - 80000.0) / 500.0, 12.0);
    const int k = std::min(static_cast<int>(s), 11);
    const double f = s - k;
    return kMolarMassRatio[k] * (1.0 - f) + kMolarMassRatio[k + 1] * f;
}

AirState LowerAtmosphere(double z) {
    const double h = kEarthRadius * z / (kEarthRadius + z);
    int k = 0;
    while (k + 1 < static_cast<int>(kLayers.size()) && h >= kLayers[k + 1].base) {
        ++k;
    }
    const Layer &l = kLayers[k];
    const double tm = l.tempBase + l.lapse * (h - l.base);
    const double beta = kG0 * kSeaLevelMolarMass / kGasConstant;
    double p;
    if (l.lapse == 0.0) {
        p = l.pressBase * std::exp(-beta * (h - l.base) / l.tempBase);
    } else {
        p = l.pressBase * std::pow(l.tempBase / tm, beta / l.lapse);
    }
    AirState s;
    s.pressure = p;
    s.density = p * kSeaLevelMolarMass / (kGasConstant * tm);
    s.temperature = tm * MolarMassRatio(z);
    return s;
}

// --- 86 to 1000 km -----------------------------------------------------------
double UpperTemperature(double zKm) {
    if (zKm < 91.0) {
        return 186.8673;
    }
    if (zKm < 110.0) {
        const double x = (zKm - 91.0) / -19.9429;
        return 263.1905 - 76.3232 * std::sqrt(1.0 - x * x);
    }
    if (zKm < 120.0) {
        return 240.0 + 12.0 * (zKm - 110.0);
    }
    const double r0 = kEarthRadius / 1000.0;
    const double xi = (zKm - 120.0) * (r0 + 120.0) / (r0 + zKm);
    return 1000.0 - 640.0 * std::exp(-0.01875 * xi);
}

struct Node {
    double z;        // [km]
    double pressure; // [Pa]
    double density;  // [kg/m^3]
};

constexpr std::array<Node, 22> kNodes{{
    {86, 3.7338e-1, 6.958e-6},    {90, 1.8359e-1, 3.416e-6},   {100, 3.2011e-2, 5.604e-7},
    {110, 7.1042e-3, 9.708e-8},   {120, 2.5382e-3, 2.222e-8},  {130, 1.2505e-3, 8.152e-9},
    {140, 7.2028e-4, 3.831e-9},   {150, 4.5422e-4, 2.076e-9},  {160, 3.0395e-4, 1.233e-9},
    {180, 1.5271e-4, 5.194e-10},  {200, 8.4736e-5, 2.541e-10}, {250, 2.4767e-5, 6.073e-11},
    {300, 8.7704e-6, 1.916e-11},  {350, 3.4498e-6, 7.014e-12}, {400, 1.4518e-6, 2.803e-12},
    {450, 6.4468e-7, 1.184e-12},  {500, 3.0236e-7, 5.215e-13}, {600, 8.2130e-8, 1.137e-13},
    {700, 3.1908e-8, 3.070e-14},  {800, 1.7036e-8, 1.136e-14}, {900, 1.0873e-8, 5.759e-15},
    {1000, 7.5138e-9, 3.561e-15},
}};
constexpr int kNodeCount = static_cast<int>(kNodes.size());

// A monotone cubic (Fritsch-Carlson) through the logarithms of one column.
class LogCurve {
  public:
    explicit LogCurve(double Node::*column) {
        for (int k = 0; k < kNodeCount; ++k) {
            y_[k] = std::log(kNodes[k].*column);
        }
        std::array<double, kNodeCount - 1> slope{};
        for (int k = 0; k + 1 < kNodeCount; ++k) {
            slope[k] = (y_[k + 1] - y_[k]) / (kNodes[k + 1].z - kNodes[k].z);
        }
        d_[0] = slope[0];
        d_[kNodeCount - 1] = slope[kNodeCount - 2];
        for (int k = 1; k + 1 < kNodeCount; ++k) {
            const double h0 = kNodes[k].z - kNodes[k - 1].z, h1 = kNodes[k + 1].z - kNodes[k].z;
            const double s0 = slope[k - 1], s1 = slope[k];
            if (s0 * s1 <= 0.0) {
                d_[k] = 0.0;
            } else {
                const double w0 = 2.0 * h1 + h0, w1 = h1 + 2.0 * h0;
                d_[k] = (w0 + w1) / (w0 / s0 + w1 / s1);
            }
        }
    }

    // Logarithm of the value at zKm, between the first and last node.
    double At(double zKm) const {
        int k = 0;
        while (k + 2 < kNodeCount && zKm >= kNodes[k + 1].z) {
            ++k;
        }
        const double h = kNodes[k + 1].z - kNodes[k].z;
        const double t = (zKm - kNodes[k].z) / h;
        const double t2 = t * t, t3 = t2 * t;
        return (2 * t3 - 3 * t2 + 1) * y_[k] + (t3 - 2 * t2 + t) * h * d_[k] +
               (-2 * t3 + 3 * t2) * y_[k + 1] + (t3 - t2) * h * d_[k + 1];
    }
    double TopSlope() const { return d_[kNodeCount - 1]; }

  private:
    std::array<double, kNodeCount> y_{};
    std::array<double, kNodeCount> d_{};
};

const LogCurve &PressureCurve() {
    static const LogCurve curve(&Node::pressure);
    return curve;
}
const LogCurve &DensityCurve() {
    static const LogCurve curve(&Node::density);
    return curve;
}

AirState UpperAtmosphere(double z) {
    const double zKm = z / 1000.0;
    AirState s;
    if (zKm <= 1000.0) {
        s.pressure = std::exp(PressureCurve().At(zKm));
        s.density = std::exp(DensityCurve().At(zKm));
        s.temperature = UpperTemperature(zKm);
    } else {
        const double dz = zKm - 1000.0;
        s.pressure = kNodes.back().pressure * std::exp(PressureCurve().TopSlope() * dz);
        s.density = kNodes.back().density * std::exp(DensityCurve().TopSlope() * dz);
        s.temperature = 1000.0;
    }
    return s;
}

} // namespace

AirState StandardAtmosphere(double z) {
    if (z >= kTopOfAtmosphere) {
        return {};
    }
    AirState s = z < 86000.0 ? LowerAtmosphere(z) : UpperAtmosphere(z);
    s.speedOfSound = std::sqrt(kGamma * s.pressure / s.density);
    return s;
}

} // namespace hullhost::physics
