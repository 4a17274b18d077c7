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
};

constexpr KeyMarks kKeyMarks[] = {
    {"ButtonSquareRoot", u"", u"\u221A", Place::Base, u""},
    {"ButtonCubeRoot", u"3", u"\u221A", Place::Base, u""},
    {"ButtonNthRoot", u"y", u"\u221A", Place::Base, u""},
    {"ButtonSquared", u"", u"", Place::Raised, u"2"},
    {"ButtonCubed", u"", u"", Place::Raised, u"3"},
    {"ButtonXtotheY", u"", u"", Place::Raised, u"y"},
    {"ButtonLogBasen", u"", u"", Place::Lowered, u"n"},
    {"ButtonTenToTheX", u"", u"", Place::Raised, u"x"},
    {"ButtoneToTheX", u"", u"", Place::Raised, u"x"},
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

}  // namespace tessarine::desktop
