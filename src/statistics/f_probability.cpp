#include "statistics/f_probability.hpp"

#include "runtime/arithmetic.hpp"

namespace tessarine::statistics {

namespace {

void Tell(const MessageBox& message_box, const std::string& text) {
  if (message_box) message_box(text);
}

}  // namespace

double gammln(double xx) {
  const double x = xx - 1.0;
  double tmp = x + 5.5;
  tmp = (x + 0.5) * Log(tmp) - tmp;
  // These six coefficients fix the accuracy at about seven digits, all the program shows.
  const double ser = 1.0 + 76.18009173 / (x + 1.0) - 86.50532033 / (x + 2.0) +
                     24.01409822 / (x + 3.0) - 1.231739516 / (x + 4.0) + 0.00120858003 / (x + 5.0) -
                     5.36382e-06 / (x + 6.0);
  return tmp + Log(2.50662827465 * ser);
}

double betacf(double a, double b, double x, const MessageBox& message_box) {
  const double imax = 100.0;
  const double eps = 3e-07;
  double am = 1.0;
  double bm = 1.0;
  double az = 1.0;
  const double qab = a + b;
  const double qap = a + 1.0;
  const double qam = a - 1.0;
  double bz = 1.0 - qab * x / qap;
  for (int m = 1;; ++m) {
    if (m > imax) {
      Tell(message_box, "BETACF Error: imax is too small or a & b are too large");
      break;
    }
    const double em = m;
    const double tem = em + em;
    double d = em * (b - m) * x / ((qam + tem) * (a + tem));
    const double ap = az + d * am;
    const double bp = bz + d * bm;
    d = -(a + em) * (qab + em) * x / ((a + tem) * (qap + tem));
    const double app = ap + d * az;
    const double bpp = bp + d * bz;
    const double aold = az;
    am = ap / bpp;
    bm = bp / bpp;
    az = app / bpp;
    bz = 1.0;
    if (Abs(az - aold) < eps * Abs(az)) break;
  }
  return az;
}

double betaI(double a, double b, double x, const MessageBox& message_box) {
  if (x < 0.0 || x > 1.0) Tell(message_box, "BetaI Error:  bad x parameter");
  double bt = 0.0;
  if (x != 0.0 && x != 1.0) {
    bt = Exp(gammln(a + b) - gammln(a) - gammln(b) + a * Log(x) + b * Log(1.0 - x));
  }
  if (x < (a + 1.0) / (a + b + 2.0)) return bt * betacf(a, b, x, message_box) / a;
  return 1.0 - bt * betacf(b, a, 1.0 - x, message_box) / b;
}

double Probability(double dfn, double dfd, double f, const MessageBox& message_box) {
  return betaI(dfd / 2.0, dfn / 2.0, dfd / (dfd + dfn * f), message_box);
}

}  // namespace tessarine::statistics
