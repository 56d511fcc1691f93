#include "views/motion/Spring.h"

#include <cmath>
#include <numbers>

namespace drossbin {
namespace {

constexpr double response = 0.3;
constexpr double damping = 0.825;
constexpr double rest = 0.001;
constexpr double frequency = 2 * std::numbers::pi / response;

double swing() {
    return std::sqrt(1 - damping * damping);
}

double secondsToRest() {
    return -std::log(rest * swing()) / (damping * frequency);
}

double eased(double progress) {
    return progress < 1 ? Spring::position(progress * secondsToRest()) : 1;
}

} // namespace

double Spring::position(double seconds) {
    const double angle = frequency * swing() * seconds;
    const double decay = std::exp(-damping * frequency * seconds);
    return 1 - decay * (std::cos(angle) + damping / swing() * std::sin(angle));
}

QEasingCurve Spring::curve() {
    QEasingCurve curve;
    curve.setCustomType(eased);
    return curve;
}

int Spring::duration() {
    return static_cast<int>(std::lround(secondsToRest() * 1000));
}

} // namespace drossbin
