#include "AddressBook.h"

#include <fstream>
#include <iterator>
#include <string_view>

#include "EtsCsvReader.h"
#include "EtsXmlReader.h"
#include "NumberText.h"

namespace Knxconv {

AddressBook ReadAddressFile(const std::string& path) {
  std::ifstream in(path, std::ios::binary);
  if (!in) {
    throw AddressFileError(path, 0, "cannot read the file");
  }
  std::string text((std::istreambuf_iterator<char>(in)), std::istreambuf_iterator<char>());
  constexpr std::string_view ByteOrderMark = "\xEF\xBB\xBF";
  if (std::string_view(text).substr(0, ByteOrderMark.size()) == ByteOrderMark) {
    text.erase(0, ByteOrderMark.size());
  }
  const std::string_view content = Trim(text);
  if (!content.empty() && content.front() == '<') {
    return ReadEtsXml(text, path);
  }
  return ReadEtsCsv(text, path);
}

}  // namespace Knxconv
