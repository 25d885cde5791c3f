// Slices from Rust, linked with libtarn: any length, in place too. Lengths that differ panic before anything is computed.
//     rustc -O examples/slices.rs -L LIBRARY-DIRECTORY
#[link(name = "tarn")]
extern "C" {
    fn tarn_expf(n: usize, x: *const f32, r: *mut f32);
    fn tarn_sincosf(n: usize, x: *const f32, sine: *mut f32, cosine: *mut f32);
}

/// `r[i] = exp(x[i])`
pub fn exp(x: &[f32], r: &mut [f32]) {
    assert_eq!(x.len(), r.len(), "exp: the lengths of its slices differ");
    unsafe { tarn_expf(x.len(), x.as_ptr(), r.as_mut_ptr()) }
}

/// `x[i] = exp(x[i])`
pub fn exp_in_place(x: &mut [f32]) {
    let p = x.as_mut_ptr();
    unsafe { tarn_expf(x.len(), p, p) }
}

pub fn sincos(x: &[f32], sine: &mut [f32], cosine: &mut [f32]) {
    assert!(x.len() == sine.len() && x.len() == cosine.len(), "sincos: the lengths of its slices differ");
    unsafe { tarn_sincosf(x.len(), x.as_ptr(), sine.as_mut_ptr(), cosine.as_mut_ptr()) }
}

fn main() {
    let x = [0.0, 1.0, -2.5, 10.0, 0.5];
    let mut r = [0.0; 5];
    exp(&x, &mut r);
    for (x, r) in x.iter().zip(&r) {
        println!("exp({}) = {:.8}", x, r);
    }
    let mut again = x;
    exp_in_place(&mut again);
    assert_eq!(r, again);
    let (mut sine, mut cosine) = ([0.0; 5], [0.0; 5]);
    sincos(&x, &mut sine, &mut cosine);
    for (s, c) in sine.iter().zip(&cosine) {
        assert!((s * s + c * c - 1.0f32).abs() < 1e-6);
    }
    if std::env::args().len() > 1 {
        exp(&x, &mut r[..4]);
    }
}
