#include "menu_commands.hpp"

#include <charconv>

#include "driver.hpp"
#include "json_text.hpp"
#include "shell/tessarine_app.hpp"

namespace tessarine::drive {

namespace {

// An item's index from its word, -1 when none is given.
int IndexWord(const std::vector<Word>& args) {
  if (args.size() < 2) return -1;
  int index = 0;
  const std::string& s = args[1].text;
  auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), index);
  if (ec != std::errc() || end != s.data() + s.size() || index < 0)
    throw ScriptError("a menu item's index is a whole number, got " + s);
  return index;
}

}  // namespace

void AddMenuCommands(Driver& driver) {
  driver.AddCommand("menu", [&driver](const std::vector<Word>& args, std::ostream&) {
    if (args.empty() || args.size() > 2) throw ScriptError("usage: menu ITEM [INDEX]");
    if (!driver.Program().App().MenuCommand(args[0].text, IndexWord(args)))
      throw ScriptError("unknown menu item " + args[0].text);
  });
  driver.AddCommand("menuitem", [&driver](const std::vector<Word>& args, std::ostream& out) {
    if (args.empty() || args.size() > 2) throw ScriptError("usage: menuitem ITEM [INDEX]");
    TessarineApp& app = driver.Program().App();
    // As the user sees it when the menu opens: after the enabling rules.
    app.EnableMenuItems();
    const MenuItem* item = app.GetMenuBar().Find(args[0].text, IndexWord(args));
    if (!item) throw ScriptError("unknown menu item " + args[0].text);
    out << "{\"text\":" << JsonString(item->text) << ",\"Enabled\":" << JsonBool(item->enabled)
        << ",\"Checked\":" << JsonBool(item->checked) << "}\n";
  });
}

}  // namespace tessarine::drive
