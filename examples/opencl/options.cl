// European call options by Black and Scholes: the price and its derivatives, four contracts a work-item.
#ifdef WITH_MODULE
#include <ocl_tarn_k1.cl.h>
#endif
#ifdef cl_khr_fp64
#pragma OPENCL EXTENSION cl_khr_fp64 : enable
#endif
// The host repeats every product and sum: none may be fused.
#pragma OPENCL FP_CONTRACT OFF

static double4 normal_below(double4 d) { return 0.5 * erfc(d * -0.70710678118654752); }

kernel void price(double spot, double rate, ulong contracts, global const double* strikes, global const double* years,
                  global const double* volatilities, global double* results) {
    const size_t i = get_global_id(0);
    const double4 strike = vload4(i, strikes), t = vload4(i, years), volatility = vload4(i, volatilities);

    const double4 root = sqrt(t), spread = volatility * root;
    const double4 d1 = (log(spot / strike) + (rate + 0.5 * volatility * volatility) * t) / spread, d2 = d1 - spread;
    const double4 below1 = normal_below(d1), below2 = normal_below(d2);
    const double4 density = exp(-0.5 * d1 * d1) * 0.39894228040143268, owed = strike * exp(-rate * t);

    vstore4(spot * below1 - owed * below2, i, results);                                                      // price
    vstore4(below1, i, results + contracts);                                                                 // delta
    vstore4(density / (spot * spread), i, results + 2 * contracts);                                          // gamma
    vstore4(spot * density * root, i, results + 3 * contracts);                                              // vega
    vstore4(-spot * density * volatility / (2.0 * root) - rate * owed * below2, i, results + 4 * contracts);  // theta
    vstore4(t * owed * below2, i, results + 5 * contracts);                                                  // rho
}
