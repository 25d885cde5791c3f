; 0 where every call gives what it should, else the bit of each that does not.
define i32 @main() {
  %lanes = load <8 x float>, ptr @x
  %low = shufflevector <8 x float> %lanes, <8 x float> poison, <4 x i32> <i32 0, i32 1, i32 2, i32 3>
  %high = shufflevector <8 x float> %lanes, <8 x float> poison, <4 x i32> <i32 4, i32 5, i32 6, i32 7>
  %two = shufflevector <8 x float> %lanes, <8 x float> poison, <2 x i32> <i32 0, i32 1>
  %low.exp = call <4 x float> @__ocl_tarn_k1_expf4(<4 x float> %low)
  %high.exp = call <4 x float> @__ocl_tarn_k1_expf4(<4 x float> %high)
  %exp = shufflevector <4 x float> %low.exp, <4 x float> %high.exp, <8 x i32> <i32 0, i32 1, i32 2, i32 3, i32 4, i32 5, i32 6, i32 7>

  %eight = alloca %float8, align 16
  call void @__ocl_tarn_k1_expf8(ptr sret(%float8) align 16 %eight, ptr byval(%float8) align 16 @x)
  %eight.exp = load <8 x float>, ptr %eight, align 16
  %eight.right = call i1 @equal8(<8 x float> %eight.exp, <8 x float> %exp)

  %two.exp = call <2 x float> @__ocl_tarn_k1_expf2(<2 x float> %two)
  %two.first = extractelement <2 x float> %two.exp, i32 0
  %two.last = extractelement <2 x float> %two.exp, i32 1
  %first = extractelement <4 x float> %low.exp, i32 0
  %last = extractelement <4 x float> %low.exp, i32 1
  %first.right = fcmp oeq float %two.first, %first
  %last.right = fcmp oeq float %two.last, %last
  %two.right = and i1 %first.right, %last.right

  %cosine = alloca <4 x float>, align 4
  %sine.at.zero = call <4 x float> @__ocl_tarn_k1_sincosf4(<4 x float> zeroinitializer, ptr %cosine)
  %cosine.at.zero = load <4 x float>, ptr %cosine, align 4
  %sum = fadd <4 x float> %sine.at.zero, %cosine.at.zero
  %sums = shufflevector <4 x float> %sum, <4 x float> poison, <8 x i32> <i32 0, i32 1, i32 2, i32 3, i32 0, i32 1, i32 2, i32 3>
  %sincos.right = call i1 @equal8(<8 x float> %sums, <8 x float> <float 1.0, float 1.0, float 1.0, float 1.0, float 1.0, float 1.0, float 1.0, float 1.0>)

  %power = call float @__ocl_tarn_k1_pownf1(float 2.0, i32 3)
  %power.right = fcmp oeq float %power, 8.0

  %wide = alloca %double16, align 16
  call void @__ocl_tarn_k1_pown16(ptr sret(%double16) align 16 %wide, ptr byval(%double16) align 16 @bases, ptr byval(%int16) align 16 @powers)
  %wide.powers = load <16 x double>, ptr %wide, align 16
  %exact.powers = load <16 x double>, ptr @exact, align 16
  %wide.right = call i1 @equal16(<16 x double> %wide.powers, <16 x double> %exact.powers)

  %eight.wrong = select i1 %eight.right, i32 0, i32 1
  %two.wrong = select i1 %two.right, i32 0, i32 2
  %sincos.wrong = select i1 %sincos.right, i32 0, i32 4
  %power.wrong = select i1 %power.right, i32 0, i32 8
  %wide.wrong = select i1 %wide.right, i32 0, i32 16
  %a = or i32 %eight.wrong, %two.wrong
  %b = or i32 %a, %sincos.wrong
  %c = or i32 %b, %power.wrong
  %all = or i32 %c, %wide.wrong
  ret i32 %all
}
