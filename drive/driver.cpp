#include "driver.hpp"

#include <charconv>

#include "calculator/calc_window.hpp"
#include "json_text.hpp"
#include "keyboard_commands.hpp"
#include "menu_commands.hpp"
#include "names.hpp"
#include "properties.hpp"
#include "session_commands.hpp"

namespace tessarine::drive {

namespace {

// The seed of the headless program's random numbers, so that scripts repeat.
constexpr std::uint64_t kRandomSeed = 20261122;

void ExpectArgs(const std::vector<Word>& args, std::size_t min, std::size_t max,
                const char* usage) {
  if (args.size() < min || args.size() > max) throw ScriptError(std::string("usage: ") + usage);
}

std::string FieldText(const FieldValue& value) {
  struct Visitor {
    std::string operator()(double x) const { return JsonNumber(x); }
    std::string operator()(const std::string& s) const { return JsonString(s); }
    std::string operator()(bool b) const { return JsonBool(b); }
    std::string operator()(std::int64_t n) const { return JsonNumber(static_cast<double>(n)); }
  };
  return std::visit(Visitor{}, value);
}

std::string EventText(const PlatformEvent& event) {
  if (event.kind == "beep" || event.kind == "quit") return "{\"" + event.kind + "\":true}";
  if (event.kind == "sent" || event.kind == "received" || event.kind == "socketerror")
    return "{\"" + event.kind + "\":" + event.text + "}";
  std::string text = "{" + JsonString(event.kind) + ":" + JsonString(event.text);
  if (event.kind == "show") text += ",\"sheet\":" + JsonBool(event.flag);
  if (event.kind == "exception") text += ",\"handler\":" + JsonString(event.detail);
  if (event.kind == "print") text += ",\"block\":" + JsonString(event.detail);
  if (event.kind == "dialog" && !event.detail.empty())
    text += ",\"setup\":" + JsonString(event.detail);
  return text + "}";
}

}  // namespace

Driver::Driver(const DriverOptions& options) : options_(options) {
  if (options.prefs_dir.empty())
    files_ = std::make_unique<MemoryFileSystem>();
  else
    files_ = std::make_unique<PosixFileSystem>(options.prefs_dir);
  AddControlCommands();
  AddPlatformCommands();
  Launch();
  AddKeyboardCommands(*this);
  AddMenuCommands(*this);
  AddSessionCommands(*this);
}

void Driver::Launch() {
  program_.reset();
  platform_ = std::make_unique<HeadlessPlatform>(options_.decimal_separator, files_.get());
  platform_->SetScreenSize(options_.screen_width, options_.screen_height);
  platform_->ConnectSockets(sockets_,
                            [this](int max_wait_ms) { return sockets_.Pump(max_wait_ms); });
  platform_->platform().server_override = options_.server;
  program_ = std::make_unique<tessarine::Program>(platform_->platform(), kRandomSeed);
  program_->Start();
}

void Driver::Restart() {
  Launch();
}

void Driver::RunLine(const std::string& line, std::ostream& out) {
  // A comment is skipped before its words are read: it may hold anything.
  const auto first = line.find_first_not_of(" \t");
  if (first == std::string::npos || line[first] == '#') return;
  std::string error;
  auto words = SplitWords(line, error);
  if (!words) throw ScriptError(error);
  if (words->empty()) return;
  if ((*words)[0].quoted) throw ScriptError("a line must start with a command");
  const auto command = commands_.find((*words)[0].text);
  if (command == commands_.end()) throw ScriptError("unknown command " + (*words)[0].text);
  if (Finished() && command->first != "echo" && command->first != "events" &&
      command->first != "restart" && command->first != "prefs")
    throw ScriptError("the program has ended");
  const std::vector<Word> args(words->begin() + 1, words->end());
  command->second(args, out);
}

void Driver::AddControlCommands() {
  AddCommand("press", [this](const std::vector<Word>& args, std::ostream&) {
    if (args.empty()) throw ScriptError("usage: press CONTROL...");
    // Several controls are clicked one after another, as separate clicks.
    for (const Word& name : args) {
      const Target target = Resolve(*program_, name.text);
      if (!target.control) throw ScriptError(name.text + " is not a control");
      target.control->Click();
    }
  });
  AddCommand("get", [this](const std::vector<Word>& args, std::ostream& out) {
    if (args.empty()) throw ScriptError("usage: get CONTROL.Property...");
    for (const Word& path : args) {  // one line each
      std::string name, property;
      SplitProperty(path.text, name, property);
      out << path.text << " = " << GetProperty(Resolve(*program_, name), property) << '\n';
    }
  });
  AddCommand("set", [this](const std::vector<Word>& args, std::ostream&) {
    ExpectArgs(args, 2, 2, "set CONTROL.Property VALUE");
    std::string name, property;
    SplitProperty(args[0].text, name, property);
    SetProperty(Resolve(*program_, name), property, args[1]);
  });
  AddCommand("dump", [this](const std::vector<Word>& args, std::ostream& out) {
    ExpectArgs(args, 1, 1, "dump CONTROL");
    const Target target = Resolve(*program_, args[0].text);
    if (!target.control) throw ScriptError(args[0].text + " is not a control");
    out << DumpControl(*target.control) << '\n';
  });
  AddCommand("field", [this](const std::vector<Word>& args, std::ostream& out) {
    if (args.empty()) throw ScriptError("usage: field NAME...");
    for (const Word& word : args) {  // one line each
      std::string window_name = "CalcWindow", name = word.text;
      if (const auto dot = name.find('.'); dot != std::string::npos) {
        window_name = name.substr(0, dot);
        name = name.substr(dot + 1);
      }
      const auto value = FindWindow(*program_, window_name).FieldByName(name);
      if (!value) throw ScriptError("unknown field " + word.text);
      out << word.text << " = " << FieldText(*value) << '\n';
    }
  });
}

void Driver::AddPlatformCommands() {
  AddCommand("wait", [this](const std::vector<Word>& args, std::ostream&) {
    ExpectArgs(args, 1, 1, "wait MS");
    long long ms = 0;
    const std::string& s = args[0].text;
    auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), ms);
    if (ec != std::errc() || end != s.data() + s.size() || ms < 0 || ms > 1000LL * 86400 * 365)
      throw ScriptError("wait takes milliseconds, got " + s);
    platform_->Wait(ms);
  });
  AddCommand("net", [this](const std::vector<Word>& args, std::ostream&) {
    ExpectArgs(args, 1, 1, "net MS");
    long long ms = 0;
    const std::string& s = args[0].text;
    auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), ms);
    if (ec != std::errc() || end != s.data() + s.size() || ms < 0 || ms > 600000)
      throw ScriptError("net takes milliseconds up to 600000, got " + s);
    platform_->Net(ms);
  });
  AddCommand("after", [this](const std::vector<Word>& args, std::ostream& out) {
    if (args.size() < 2) throw ScriptError("usage: after MS COMMAND...");
    long long ms = 0;
    const std::string& s = args[0].text;
    auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), ms);
    if (ec != std::errc() || end != s.data() + s.size() || ms < 0)
      throw ScriptError("after takes milliseconds, got " + s);
    const auto command = commands_.find(args[1].text);
    if (args[1].quoted || command == commands_.end())
      throw ScriptError("unknown command " + args[1].text);
    // The command runs later, inside whatever the program is doing then; a script
    // error there can only be reported, not stop the script at its line.
    std::vector<Word> rest(args.begin() + 2, args.end());
    Command run = command->second;
    platform_->After(ms, [run, rest, &out] {
      try {
        run(rest, out);
      } catch (const ScriptError& error) {
        out << "after: " << error.what() << '\n';
      }
    });
  });
  AddCommand("clockrate", [this](const std::vector<Word>& args, std::ostream&) {
    ExpectArgs(args, 1, 1, "clockrate US");
    long long us = 0;
    const std::string& s = args[0].text;
    auto [end, ec] = std::from_chars(s.data(), s.data() + s.size(), us);
    if (ec != std::errc() || end != s.data() + s.size() || us < 0 || us > 1000000000LL)
      throw ScriptError("clockrate takes microseconds per clock read, got " + s);
    platform_->SetClockRate(us);
  });
  for (const bool down : {true, false}) {
    AddCommand(down ? "hold" : "release",
               [this, down](const std::vector<Word>& args, std::ostream&) {
                 ExpectArgs(args, 1, 8, down ? "hold MOD..." : "release MOD...");
                 for (const Word& key : args)
                   if (!platform_->Hold(key.text, down))
                     throw ScriptError("unknown key " + key.text);
               });
  }
  AddCommand("clipboard", [this](const std::vector<Word>& args, std::ostream& out) {
    ExpectArgs(args, 0, 1, "clipboard [TEXT]");
    if (args.empty()) {
      const auto& text = platform_->ClipboardText();
      out << (text ? JsonString(*text) : "null") << '\n';
    } else {
      platform_->SetClipboard(args[0].text);
    }
  });
  AddCommand("events", [this](const std::vector<Word>& args, std::ostream& out) {
    // With kinds given, prints only those; either way everything is forgotten.
    for (const PlatformEvent& event : platform_->TakeEvents()) {
      bool wanted = args.empty();
      for (const Word& kind : args) wanted = wanted || kind.text == event.kind;
      if (wanted) out << EventText(event) << '\n';
    }
  });
  AddCommand("restart", [this](const std::vector<Word>& args, std::ostream&) {
    if (!args.empty()) throw ScriptError("usage: restart");
    Restart();
  });
  AddCommand("echo", [](const std::vector<Word>& args, std::ostream& out) {
    for (std::size_t i = 0; i < args.size(); ++i) out << (i ? " " : "") << args[i].text;
    out << '\n';
  });
}

}  // namespace tessarine::drive
