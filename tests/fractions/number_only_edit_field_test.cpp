#include "fractions/number_only_edit_field.hpp"

#include <gtest/gtest.h>

namespace tessarine {
namespace {

TEST(NumberOnlyEditFieldTest, KeyFilter) {
  struct Row {
    const char* key;
    bool swallowed;
  };
  const Row rows[] = {
      {"0", false},     {"7", false},     {",", false},    {".", false},    {"-", false},
      {"\t", false},    {"\r", false},    {"\x08", false}, {"\x1c", false}, {"", false},
      {"e", true},      {"E", true},      {"+", true},     {" ", true},     {"\x7f", true},
      {"\u00F7", true}, {"\u2013", true}, {"0,", false},   {"-.", true},
  };
  for (const Row& row : rows) {
    EXPECT_EQ(NumberOnlyEditFieldKeyDown(row.key), row.swallowed) << "key " << row.key;
  }
}

}  // namespace
}  // namespace tessarine
