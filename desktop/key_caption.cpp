#include "key_caption.hpp"

namespace tessarine::desktop {

namespace {

using Place = CaptionRun::Place;

struct KeyMarks {
  const char* name;
  // Drawn before the caption (the index of a root and its sign), then after it.
  const char16_t* before_mark;
  const char16_t* before_base;
  Place after_place;
  const char16_t* after_mark;
  const char* spoken;
};

constexpr KeyMarks kKeyMarks[] = {
    {"ButtonSquareRoot", u"", u"\u221A", Place::Base, u"", "square root"},
    {"ButtonCubeRoot", u"3", u"\u221A", Place::Base, u"", "cube root"},
    {"ButtonNthRoot", u"y", u"\u221A", Place::Base, u"", "y-th root"},
    {"ButtonSquared", u"", u"", Place::Raised, u"2", "x squared"},
    {"ButtonCubed", u"", u"", Place::Raised, u"3", "x cubed"},
    {"ButtonXtotheY", u"", u"", Place::Raised, u"y", "x to the power y"},
    {"ButtonLogBasen", u"", u"", Place::Lowered, u"n", "logarithm to base n"},
    {"ButtonTenToTheX", u"", u"", Place::Raised, u"x", "ten to the power x"},
    {"ButtoneToTheX", u"", u"", Place::Raised, u"x", "e to the power x"},
};

// Keys whose caption is a sign that reads badly aloud.
struct SpokenName {
  const char* name;
  const char* spoken;
};

constexpr SpokenName kSpokenNames[] = {
    {"ButtonClear", "clear"},
    {"ButtonClearEntry", "clear entry"},
    {"ButtonPlus", "plus"},
    {"ButtonMinus", "minus"},
    {"ButtonTimes", "times"},
    {"ButtonDivide", "divide"},
    {"ButtonEqual", "equals"},
    {"ButtonPercent", "percent"},
    {"ButtonChangeSign", "change sign"},
    {"ButtonDecimal", "decimal point"},
    {"ButtonDeltaPercent", "percent change"},
    {"Buttonpi", "pi"},
};

const KeyMarks* MarksFor(const QString& control_name) {
  for (const KeyMarks& marks : kKeyMarks)
    if (control_name.compare(QLatin1String(marks.name), Qt::CaseInsensitive) == 0) return &marks;
  return nullptr;
}

}  // namespace

std::vector<CaptionRun> KeyCaptionRuns(const QString& control_name, const QString& caption) {
  const KeyMarks* marks = MarksFor(control_name);
  if (!marks) return {CaptionRun{caption, Place::Base}};
  std::vector<CaptionRun> runs;
  const QString before_mark = QString::fromUtf16(marks->before_mark);
  const QString before_base = QString::fromUtf16(marks->before_base);
  const QString after_mark = QString::fromUtf16(marks->after_mark);
  if (!before_mark.isEmpty()) runs.push_back({before_mark, Place::Raised});
  if (!before_base.isEmpty()) runs.push_back({before_base, Place::Base});
  if (!caption.isEmpty()) runs.push_back({caption, Place::Base});
  if (!after_mark.isEmpty()) runs.push_back({after_mark, marks->after_place});
  return runs;
}

QString AccessibleKeyName(const QString& control_name, const QString& caption) {
  if (const KeyMarks* marks = MarksFor(control_name)) return QString::fromLatin1(marks->spoken);
  for (const SpokenName& entry : kSpokenNames)
    if (control_name.compare(QLatin1String(entry.name), Qt::CaseInsensitive) == 0)
      return QString::fromLatin1(entry.spoken);
  return caption.isEmpty() ? control_name : caption;
}

}  // namespace tessarine::desktop
