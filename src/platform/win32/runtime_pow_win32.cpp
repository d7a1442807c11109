// pow from the C runtime DLL. The compiler's static runtime brings its own
// pow, which is off by an ulp for powers of ten and does not report overflow;
// the library's rounding and guarded arithmetic depend on the runtime's
// accurate one. Every reference to pow in the DLL and in the programs that
// link the library's objects is sent here by the linker (--wrap=pow, see
// cmake/KilnutilWindows.cmake).
extern "C" {

// The import-table entry of the C runtime DLL's pow.
extern double (*__imp_pow)(double, double);

double __wrap_pow(double base, double exponent);

double __wrap_pow(double base, double exponent) { return __imp_pow(base, exponent); }

}  // extern "C"
