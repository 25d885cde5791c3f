; A vector of 8 lanes where the module takes a struct of two blocks. Its two halves travel in xmm0 and xmm1, and the callee
; writes its result to wherever rdi points: here to the count of the program's arguments.
declare <8 x float> @__ocl_tarn_k1_expf8(<8 x float>)
define i32 @main(i32 %count) {
  %exp = call <8 x float> @__ocl_tarn_k1_expf8(<8 x float> zeroinitializer)
  %first = extractelement <8 x float> %exp, i32 0
  %right = fcmp oeq float %first, 1.0
  %status = select i1 %right, i32 0, i32 1
  ret i32 %status
}
