; A vector of 8 lanes where the module takes a struct of two blocks: it travels in xmm0 and xmm1 as that does, until the
; caller is compiled for AVX. 0 where the result is right.
declare x86_vectorcallcc <8 x float> @"\01__ocl_tarn_k1_expf8"(<8 x float>)
define i32 @main() {
  %exp = call x86_vectorcallcc <8 x float> @"\01__ocl_tarn_k1_expf8"(<8 x float> zeroinitializer)
  %first = extractelement <8 x float> %exp, i32 0
  %last = extractelement <8 x float> %exp, i32 7
  %sum = fadd float %first, %last
  %right = fcmp oeq float %sum, 2.0
  %status = select i1 %right, i32 0, i32 1
  ret i32 %status
}
