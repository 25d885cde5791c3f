// What tarn-exports writes, each on standard output. Those that renew a file take its name and give an exit status.
#pragma once

namespace tarn {

void header();
void windows_header();
void windows_imports();
void calls();
void accuracy();
void opencl_header();
void catalogue();
void arrays();
void loops();
void simd_header();
void tarn_map();
int comments(const char* file);
int contract(const char* file);
int mapping(const char* file);
int conventions(const char* file);
int speed(const char* file);
int pages(const char* directory);

}  // namespace tarn
