#include "CatalogueInput.h"
#include "Conversion.h"
#include "InputError.h"
#include "StandardCommands.h"
#include "UsageError.h"
#include "ValueText.h"

namespace Knxconv {

namespace {

constexpr int MaximumBits = 255;
constexpr const char* DptHelp =
    "9.001, 9.1, 9, 9.x, DPT9.001, DPST-9-1 or DPT_Value_Temp; 0 for none (completed from --bits and the type)";

int RunEncode(const Arguments& arguments, OutputContext& context) {
  KNXDPT dpt = DptWithBits(*arguments.Positional("DPT"), arguments.Integer("--bits", 1, MaximumBits, 0));
  const Nelmo::KnxValueConverter converter;
  const Encoded encoded = EncodeValue(converter, dpt, arguments, context);
  if (encoded.status != ExitSuccess) {
    return encoded.status;
  }
  context.PrintResult(encoded.groupValue.GetRawData().ToString(), EncodeJson(dpt, encoded.groupValue));
  return ExitSuccess;
}

int RunDecode(const Arguments& arguments, OutputContext& context) {
  const int bits = arguments.Integer("--bits", 1, MaximumBits, 0);
  TraceResult result;
  result.dpt = DptWithBits(*arguments.Positional("DPT"), bits);
  // The wanted type matters only where the library has to choose the DPT.
  const std::optional<std::string> typeName = arguments.Value("--type");
  result.value = ULOVALUE(typeName ? ParseValueType(*typeName) : IVT_ANY);
  const Nelmo::KnxValueConverter converter;
  Decode(converter, *arguments.Positional("HEX"), bits, result);
  if (!result.error.empty()) {
    return context.Fail(ExitRefused, result.error);
  }
  if (!result.converted) {
    return context.Refused();
  }
  context.PrintResult(DecodeText(result), DecodeJson(result));
  return ExitSuccess;
}

}  // namespace

void AddConvertCommands(CommandRegistry& registry) {
  registry.Add({"encode",
                "Convert a value to the bytes of a KNX group value",
                {{"DPT", DptHelp, true},
                 {"VALUE",
                  "The value, read as the DPT's value type or as --type says: on/off, a value name, 21.5 °C, "
                  "2024-03-04T07:30:15",
                  false}},
                {{"--type", "TYPE",
                  "Value type of VALUE: its name without IVT_ (double, percent, ...) or its number; none sends no "
                  "value",
                  false},
                 {"--bits", "N", "Bit size of the DPT (1 to 255)", false},
                 {"--summer-time", "", "Set the summer-time flag of a date and time", false}},
                RunEncode});
  registry.Add(
      {"decode",
       "Convert the bytes of a KNX group value to a value",
       {{"DPT", DptHelp, true}, {"HEX", "The bytes as hex pairs: \"0C 33\", 0C33, 0x0C33, 0C:33 or 0C-33", true}},
       {{"--bits", "N", "Bit size of the group value (default: the DPT's size up to 6 bits, else 8 per byte)", false},
        {"--type", "TYPE", "Value type wanted where the DPT is 0", false}},
       RunDecode});
}

}  // namespace Knxconv
