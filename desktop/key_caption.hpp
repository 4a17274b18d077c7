// What a key shows: its caption and, on the keys of powers, roots and logarithms,
// a small raised or lowered mark (the 2 of x², the n of logₙ).
#pragma once

#include <QString>
#include <vector>

namespace tessarine::desktop {

struct CaptionRun {
  enum class Place { Base, Raised, Lowered };
  QString text;
  Place place = Place::Base;
};

// The runs of a key, in reading order: the model's caption with the key's marks
// around it. A key without marks has one run, its caption.
std::vector<CaptionRun> KeyCaptionRuns(const QString& control_name, const QString& caption);

}  // namespace tessarine::desktop
