// The upper tail of the F distribution through the regularised incomplete beta function.
#pragma once

#include <functional>
#include <string>

namespace tessarine::statistics {

// Shows a modal alert; the computation goes on after it, with the number it has.
using MessageBox = std::function<void(const std::string&)>;

// ln Gamma(xx) for xx > 0 by the six-term series; about seven digits.
double gammln(double xx);

// The continued fraction of the incomplete beta function. Stops after 100 rounds
// with an alert and returns its last approximation.
double betacf(double a, double b, double x, const MessageBox& message_box);

// The regularised incomplete beta function I_x(a, b). An x outside [0, 1] raises an
// alert and is computed all the same.
double betaI(double a, double b, double x, const MessageBox& message_box);

// The probability that F with dfn and dfd degrees of freedom exceeds f.
double Probability(double dfn, double dfd, double f, const MessageBox& message_box);

}  // namespace tessarine::statistics
