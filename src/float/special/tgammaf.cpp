// gamma(x), ln |gamma(x)|, and the latter with the sign of gamma(x): the callouts compute every lane.
//
// Worst error of tgammaf: 0.5 ulp at -7.60884523.
// Worst error of lgammaf: 0.5 ulp at -26.1151505.
// Worst error of lgammarf: 0.5 ulp at -26.1151505.
#include "callout/callouts.hpp"
#include "frame/exports.hpp"

namespace tarn::singles {
namespace {

using Tgammaf = EveryLane<float(float), callout::tgammaf>;
using Lgammaf = EveryLane<float(float), callout::lgammaf>;
using Lgammarf = EveryLane<Both<float, std::int32_t>(float), callout::lgammarf>;

}  // namespace
}  // namespace tarn::singles

TARN_EXPORT(unary, tgammaf, full, tarn::singles::Tgammaf)
TARN_EXPORT(unary, lgammaf, full, tarn::singles::Lgammaf)
TARN_EXPORT(unary_second, lgammarf, full, tarn::singles::Lgammarf)
