// gamma(x), ln |gamma(x)|, and the latter with the sign of gamma(x): the callouts compute every lane.
//
// Worst error of tgamma: 0.5347 ulp at 8.9007020645503587.
// Worst error of lgamma: 0.7123 ulp at -2.7393054277141067.
// Worst error of lgammar: 0.7123 ulp at -2.7393054277141067.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::doubles {
namespace {

using Tgamma = EveryLane<double(double), callout::tgamma>;
using Lgamma = EveryLane<double(double), callout::lgamma>;
using Lgammar = EveryLane<Both<double, std::int32_t>(double), callout::lgammar>;

}  // namespace
}  // namespace tarn::doubles

TARN_EXPORT(unary, tgamma, full, tarn::doubles::Tgamma)
TARN_EXPORT(unary, lgamma, full, tarn::doubles::Lgamma)
TARN_EXPORT(unary_second, lgammar, full, tarn::doubles::Lgammar)
