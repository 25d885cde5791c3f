// gamma(x), ln |gamma(x)|, and the latter with the sign of gamma(x): the callouts compute every lane.
//
// Worst errors: gamma 0.53 ulp, ln gamma 0.54 for positive and 0.69 for negative x.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn {
namespace {

using Tgamma = EveryLane<double(double), callout::tgamma>;
using Lgamma = EveryLane<double(double), callout::lgamma>;
using Lgammar = EveryLane<Both<double, std::int32_t>(double), callout::lgammar>;

}  // namespace
}  // namespace tarn

TARN_EXPORT(unary, tgamma, full, tarn::Tgamma)
TARN_EXPORT(unary, lgamma, full, tarn::Lgamma)
TARN_EXPORT(unary_second, lgammar, full, tarn::Lgammar)
