; What both conventions are called with. Results are compared with those of width 4, or with exact values.
@x = constant [8 x float] [float 0.0, float 1.0, float 2.0, float -3.0, float 5.0, float 88.0, float -7.0, float 0.5], align 16
@bases = constant [16 x double] [
  double 3.0, double 2.0, double -3.0, double -2.0, double 4.0, double 5.0, double 6.0, double 7.0,
  double 3.0, double 2.0, double -3.0, double -2.0, double 4.0, double 5.0, double 6.0, double 7.0], align 16
@powers = constant [16 x i32] [i32 0, i32 1, i32 2, i32 3, i32 4, i32 5, i32 6, i32 7, i32 1, i32 2, i32 3, i32 4, i32 5, i32 6, i32 7, i32 2], align 16
@exact = constant [16 x double] [
  double 1.0, double 2.0, double 9.0, double -8.0, double 256.0, double 3125.0, double 46656.0, double 823543.0,
  double 3.0, double 4.0, double -27.0, double 16.0, double 1024.0, double 15625.0, double 279936.0, double 49.0], align 16

define i1 @equal8(<8 x float> %a, <8 x float> %b) {
  %lanes = fcmp oeq <8 x float> %a, %b
  %all = call i1 @llvm.vector.reduce.and.v8i1(<8 x i1> %lanes)
  ret i1 %all
}
define i1 @equal16(<16 x double> %a, <16 x double> %b) {
  %lanes = fcmp oeq <16 x double> %a, %b
  %all = call i1 @llvm.vector.reduce.and.v16i1(<16 x i1> %lanes)
  ret i1 %all
}
declare i1 @llvm.vector.reduce.and.v8i1(<8 x i1>)
declare i1 @llvm.vector.reduce.and.v16i1(<16 x i1>)
