#!/usr/bin/env python3
"""Writes special_reference.inc: reference values for the special functions
and distributions, computed with mpmath at 40 digits. Run once from this
folder (python3 make_special.py); the output is checked in.

Each row is {x, y, z, value}; unused arguments are 0. Where the library's
routine is deliberately inexact (the five-term ln Gamma, the coarse t
bisection) the row holds that routine's own result, computed exactly."""
import mpmath as mp

mp.mp.dps = 40


def five_term_ln_gamma(x):
    x = mp.mpf(x)
    y = x - 1
    t = y + mp.mpf('5.5')
    c = ['76.18009173', '-86.50532033', '24.01409822', '-1.231739516', '0.00120858003']
    s = 1 + sum(mp.mpf(ci) / (y + i + 1) for i, ci in enumerate(c))
    return mp.log(mp.mpf('2.50662827465') * s) - (t - (y + mp.mpf('0.5')) * mp.log(t))


def reg_gamma_p(x, a):
    return mp.gammainc(a, 0, x, regularized=True)


def reg_beta(x, a, b):
    return mp.betainc(a, b, 0, x, regularized=True)


def t_cdf(t, df):
    x = df / (mp.mpf(t) ** 2 + df)
    i = reg_beta(x, mp.mpf(df) / 2, mp.mpf('0.5'))
    return 1 - i / 2 if t >= 0 else i / 2


def t_quantile(p, df):
    return bisect(lambda t: t_cdf(t, df) - p, -1e6, 1e6)


def t_coarse(p, df):
    """The coarse bisection on [0, 636] with exact tails: the same midpoints
    as the library's as long as no tail lands within its error of 3e-7."""
    q = 1 - p if p <= 0.5 else p
    lo, hi, mid = 0.0, 636.0, 0.0
    for _ in range(80):
        mid = (lo + hi) / 2
        if hi - lo < 3e-7:
            break
        d = 1 - reg_beta(df / (mp.mpf(mid) ** 2 + df), mp.mpf(df) / 2, mp.mpf('0.5')) / 2 - q
        if abs(d) < 3e-7:
            break
        if d > 0:
            hi = mid
        else:
            lo = mid
    return -mid if p <= 0.5 else mid


def f_cdf(f, d1, d2):
    return 1 - reg_beta(mp.mpf(d2) / (d1 * mp.mpf(f) + d2), mp.mpf(d2) / 2, mp.mpf(d1) / 2)


def bisect(f, lo, hi):
    """The root of an increasing f on [lo, hi], to 40 digits."""
    lo, hi = mp.mpf(lo), mp.mpf(hi)
    for _ in range(200):
        mid = (lo + hi) / 2
        if f(mid) > 0:
            hi = mid
        else:
            lo = mid
    return (lo + hi) / 2


def f_quantile(p, d1, d2):
    # Solve on x = d1 F / (d1 F + d2) in (0, 1), where I_x(d1/2, d2/2) = p.
    x = bisect(lambda x: reg_beta(x, mp.mpf(d1) / 2, mp.mpf(d2) / 2) - p, 0, 1)
    return d2 * x / (d1 * (1 - x))


def chisq_quantile(p, df):
    return bisect(lambda x: reg_gamma_p(x / 2, mp.mpf(df) / 2) - p, 0, 10 * df + 100)


def chisq_start(p, m):
    """The chi-square search's start value, returned as it is once
    x * sqrt(2.2204e-16) >= 1: the deviate times ln(1 + 2/m), not its root."""
    m = mp.mpf(m)
    return mp.exp(normal_quantile(p) * mp.log(1 + 2 / m) + 2 * mp.log(m) - mp.log(m * m + 2 * m) / 2)


def normal_quantile(p):
    with mp.workdps(400):  # 2p - 1 keeps p's digits even for p = 1e-300
        return +(mp.sqrt(2) * mp.erfinv(2 * mp.mpf(p) - 1))


TABLES = {
    'kLnGammaRows': [(x, 0, 0, mp.loggamma(x)) for x in
                     [1e-8, 0.001, 0.1, 0.5, 1, 1.5, 2, 2.5, 3.7, 10, 33.3, 100, 1234.5, 1e6, 1e12]],
    'kFiveTermLnGammaRows': [(x, 0, 0, five_term_ln_gamma(x)) for x in [0.01, 0.5, 1, 2, 3.7, 10, 100, 1e6]],
    'kBetaRows': [(a, b, 0, mp.beta(a, b)) for a, b in
                  [(1, 1), (2, 3), (0.5, 0.5), (0.1, 7), (10, 20), (30, 40), (1e-3, 2)]],
    'kIncGammaRows': [(x, a, 0, reg_gamma_p(x, a)) for x, a in
                      [(1e-3, 0.5), (0.5, 0.5), (1, 2), (2.99, 2), (3.01, 2), (10, 3), (0.1, 10), (50, 10),
                       (100, 120), (130, 120), (5000, 5000), (1e-300, 1)]],
    'kIncBetaRows': [(x, a, b, reg_beta(x, a, b)) for x, a, b in
                     [(0.3, 2, 5), (0.5, 1, 1), (0.5, 0.5, 0.5), (0.01, 0.5, 3), (0.99, 3, 0.5), (0.2, 10, 10),
                      (0.6, 10, 10), (0.9, 40, 5), (1e-5, 1, 50), (0.5, 30, 30), (0.7, 0.1, 0.1)]],
    'kErfRows': [(x, 0, 0, mp.erf(x)) for x in [1e-10, 0.01, -0.3, 0.5, 1, -1.2, 1.3, 2, -3, 4.5, 6]],
    'kInvErfRows': [(y, 0, 0, mp.erfinv(y)) for y in
                    [1e-9, -0.05, 0.3, 0.69, -0.71, 0.8, 0.95, -0.999, 0.999999, 1 - 1e-9]],
    'kNormalQuantileRows': [(p, 0, 0, normal_quantile(p)) for p in
                            [1e-300, 1e-20, 1e-6, 0.001, 0.02, 0.0243, 0.0245, 0.075, 0.3, 0.5, 0.6, 0.925, 0.975,
                             0.999, 1 - 1e-9]],
    'kCumGaussPlusOneRows': [(x, 0, 0, mp.erfc(-x / mp.sqrt(2))) for x in
                             [-30, -10, -1.8, -1.7, -1, -0.1, 0, 0.2, 1.6, 1.8, 5, 9]],
    'kTCdfRows': [(t, df, 0, t_cdf(t, df)) for t, df in
                  [(2.228, 10), (-2.228, 10), (0, 5), (1, 1), (-40, 1), (0.5, 2), (3, 30), (-1.5, 300),
                   (12, 4)]],
    'kTQuantileRows': [(p, df, 0, t_quantile(p, df)) for p, df in
                       [(0.975, 10), (0.025, 10), (0.9, 1), (0.999, 1), (0.95, 2), (0.7, 30), (0.995, 120),
                        (0.1, 5)]],
    'kTCoarseRows': [(p, df, 0, t_coarse(p, df)) for p, df in [(0.975, 10), (0.05, 3), (0.9, 1), (0.6, 20)]],
    'kFCdfRows': [(f, d1, d2, f_cdf(f, d1, d2)) for f, d1, d2 in
                  [(3.708, 3, 10), (0.5, 1, 1), (1, 2, 2), (10, 5, 1), (0.2, 8, 40), (2.5, 20, 20)]],
    'kFQuantileRows': [(p, d1, d2, f_quantile(p, d1, d2)) for p, d1, d2 in
                       [(0.95, 3, 10), (0.99, 1, 1), (0.9, 5, 1), (0.05, 4, 6), (0.5, 10, 30), (0.999, 2, 50)]],
    'kChisqCdfRows': [(x, df, 0, reg_gamma_p(mp.mpf(x) / 2, mp.mpf(df) / 2)) for x, df in
                      [(3.84, 1), (0.001, 1), (10, 10), (30, 10), (1, 40), (100, 100), (250, 200)]],
    'kChisqQuantileRows': [(p, df, 0, chisq_quantile(p, df)) for p, df in
                           [(0.95, 1), (0.5, 10), (0.01, 2), (0.999, 5), (0.05, 100), (0.9, 1000)]],
    'kChisqStartRows': [(p, df, 0, chisq_start(p, df)) for p, df in [(0.9, 100000000), (0.001, 4000000000)]],
}


def main():
    lines = ['// Generated by make_special.py (mpmath, 40 digits); do not edit.',
             '// Rows are {x, y, z, value}.']
    for name, rows in TABLES.items():
        lines.append(f'inline constexpr Reference {name}[] = {{')
        for x, y, z, value in rows:
            lines.append(f'    {{{float(x)!r}, {float(y)!r}, {float(z)!r}, {float(value)!r}}},')
        lines.append('};')
    with open('special_reference.inc', 'w') as out:
        out.write('\n'.join(lines) + '\n')


if __name__ == '__main__':
    main()
