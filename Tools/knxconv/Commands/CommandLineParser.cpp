#include "CommandLineParser.h"

#include <optional>

#include "Suggestion.h"
#include "UsageError.h"

namespace Knxconv {

namespace {

constexpr const char* EndOfOptions = "--";

bool LooksLikeOption(const std::string& word) {
  return word.size() > 2 && word.compare(0, 2, EndOfOptions) == 0;
}

const OptionSpec* FindOption(const std::vector<OptionSpec>& options, const std::string& name) {
  for (const OptionSpec& option : options) {
    if (option.name == name) {
      return &option;
    }
  }
  return nullptr;
}

// Reads one command line; one word after another.
class Parser {
 public:
  Parser(const CommandRegistry& registry, const std::vector<std::string>& args, ParsedCommandLine& parsed)
      : m_registry(registry), m_args(args), m_parsed(parsed) {}

  void Parse() {
    for (m_next = 0; m_next < m_args.size();) {
      const std::string& word = m_args[m_next++];
      if (!m_endOfOptions && word == EndOfOptions) {
        m_endOfOptions = true;
      } else if (!m_endOfOptions && LooksLikeOption(word) && ReadOption(word)) {
        continue;
      } else if (m_parsed.command == nullptr) {
        SetCommand(word);
      } else {
        AddPositional(word);
      }
    }
    CheckComplete();
  }

 private:
  // False when the word is no known option but can be a positional.
  bool ReadOption(const std::string& word) {
    const std::size_t equals = word.find('=');
    const std::string name = word.substr(0, equals);
    std::optional<std::string> inlineValue;
    if (equals != std::string::npos) {
      inlineValue = word.substr(equals + 1);
    }
    const OptionSpec* spec = FindOption(GlobalOptionSpecs(), name);
    if (spec == nullptr && m_parsed.command != nullptr) {
      spec = FindOption(m_parsed.command->options, name);
    }
    if (spec == nullptr) {
      if (PositionalExpected()) {
        m_unknownOptionTaken = m_unknownOptionTaken.value_or(word);
        return false;
      }
      throw UnknownOption(name);
    }
    Store(*spec, inlineValue);
    return true;
  }

  void Store(const OptionSpec& spec, const std::optional<std::string>& inlineValue) {
    if (spec.valueName.empty()) {
      if (inlineValue) {
        throw UsageError(spec.name + " takes no value");
      }
      StoreFlag(spec.name);
      return;
    }
    if (!inlineValue && m_next >= m_args.size()) {
      throw UsageError(spec.name + " needs a value: " + spec.name + " " + spec.valueName);
    }
    std::string value = inlineValue ? *inlineValue : m_args[m_next++];
    if (!spec.repeated && m_parsed.arguments.Value(spec.name)) {
      throw UsageError(spec.name + " is given twice");
    }
    if (spec.name == "--log-level") {
      const std::optional<int> level = ParseBoundedInteger(value, 0, MaximumLogLevel);
      if (!level) {
        throw UsageError("--log-level must be a whole number from 0 to 4, not '" + value + "'");
      }
      m_parsed.globals.logLevel = *level;
    }
    m_parsed.arguments.AddValue(spec.name, std::move(value));
  }

  void StoreFlag(const std::string& name) {
    m_parsed.arguments.SetFlag(name);
    m_parsed.globals.json = m_parsed.globals.json || name == "--json";
    m_parsed.globals.help = m_parsed.globals.help || name == "--help";
    m_parsed.globals.version = m_parsed.globals.version || name == "--version";
  }

  void SetCommand(const std::string& word) {
    m_parsed.command = m_registry.Find(word);
    if (m_parsed.command != nullptr) {
      return;
    }
    const std::optional<std::string> nearest = m_registry.Nearest(word);
    throw UsageError("unknown command '" + word + "'" + (nearest ? "; did you mean '" + *nearest + "'?" : "") +
                         " (knxconv --help lists the commands)",
                     false);
  }

  bool PositionalExpected() const {
    return m_parsed.command != nullptr && m_positionalCount < m_parsed.command->positionals.size();
  }

  void AddPositional(const std::string& word) {
    if (!PositionalExpected()) {
      if (m_unknownOptionTaken) {
        throw UnknownOption(m_unknownOptionTaken->substr(0, m_unknownOptionTaken->find('=')));
      }
      throw UsageError("unexpected argument '" + word + "'");
    }
    m_parsed.arguments.SetPositional(m_parsed.command->positionals[m_positionalCount++].name, word);
  }

  void CheckComplete() const {
    if (m_parsed.command == nullptr) {
      throw UsageError("no command given");
    }
    for (std::size_t index = m_positionalCount; index < m_parsed.command->positionals.size(); ++index) {
      if (m_parsed.command->positionals[index].required) {
        throw UsageError(m_parsed.command->positionals[index].name + " is required");
      }
    }
  }

  UsageError UnknownOption(const std::string& name) const {
    std::vector<std::string> names;
    for (const OptionSpec& spec : GlobalOptionSpecs()) {
      names.push_back(spec.name);
    }
    if (m_parsed.command != nullptr) {
      for (const OptionSpec& spec : m_parsed.command->options) {
        names.push_back(spec.name);
      }
    }
    const std::optional<std::string> nearest = NearestName(name, names);
    return UsageError("unknown option '" + name + "'" + (nearest ? "; did you mean '" + *nearest + "'?" : ""));
  }

  const CommandRegistry& m_registry;
  const std::vector<std::string>& m_args;
  ParsedCommandLine& m_parsed;
  std::size_t m_next = 0;
  std::size_t m_positionalCount = 0;
  bool m_endOfOptions = false;
  // An unknown "--word" taken as a positional; named if the line then fails.
  std::optional<std::string> m_unknownOptionTaken;
};

}  // namespace

const std::vector<OptionSpec>& GlobalOptionSpecs() {
  static const std::vector<OptionSpec> specs = {
      {"--json", "", "Print results as JSON, one object per line; failures too", false},
      {"--log-level", "N",
       "Show the library's log from level N up: 0 trace, 1 info, 2 warning, 3 errors (default), "
       "4 off",
       false},
      {"--help", "", "Show the help of the program or of the command, and exit", false},
      {"--version", "", "Show the version, and exit", false},
  };
  return specs;
}

FirstLook LookAtCommandLine(const CommandRegistry& registry, const std::vector<std::string>& args) {
  FirstLook look;
  for (const std::string& word : args) {
    if (word == EndOfOptions) {
      break;
    }
    look.globals.json = look.globals.json || word == "--json";
    look.globals.help = look.globals.help || word == "--help";
    look.globals.version = look.globals.version || word == "--version";
    if (look.command == nullptr) {
      look.command = registry.Find(word);
    }
  }
  return look;
}

void ParseCommandLine(const CommandRegistry& registry, const std::vector<std::string>& args,
                      ParsedCommandLine& parsed) {
  Parser(registry, args, parsed).Parse();
}

}  // namespace Knxconv
