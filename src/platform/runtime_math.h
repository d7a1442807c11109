// The C runtime's mathematics beyond standard C++: the Bessel functions of
// integer order.
#pragma once

namespace kiln::platform {

double bessel_j0(double x);
double bessel_j1(double x);
double bessel_jn(int n, double x);
double bessel_y0(double x);
double bessel_y1(double x);
double bessel_yn(int n, double x);

}  // namespace kiln::platform
