// What the loader calls when the module comes and goes: there is nothing to do.
extern "C" int __stdcall tarn_entry(void*, unsigned long, void*) { return 1; }
