// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/xml_parser.h"

#include <expat.h>

#include <algorithm>
#include <array>
#include <exception>
#include <memory>
#include <utility>
#include <vector>

#include "exchange/plain_text.h"
#include "platform/text.h"

namespace nautrel::exchange {
namespace {

constexpr std::size_t kMostDepth = 64;
constexpr std::size_t kBlock = 1U << 20;
/// A comment or an attribute of that size is none that a dive needs.
constexpr std::size_t kLongestToken = 4U << 20;

std::string_view withoutPrefix(std::string_view name) {
  const auto colon = name.rfind(':');
  return colon == std::string_view::npos ? name : name.substr(colon + 1);
}

bool equalsInAnyCase(std::string_view one, std::string_view lower) {
  if (one.size() != lower.size()) return false;
  for (std::size_t i = 0; i < one.size(); ++i) {
    const char letter = one[i];
    const bool capital = letter >= 'A' && letter <= 'Z';
    if ((capital ? static_cast<char>(letter + ('a' - 'A')) : letter) != lower[i]) return false;
  }
  return true;
}

/// Those encodings beyond the parser's own in which a byte is a character.
int tellEncoding(void*, const XML_Char* name, XML_Encoding* encoding) {
  const auto wanted = lowerAscii(name);
  if (wanted != "windows-1252" && wanted != "cp1252" && wanted != "latin1" &&
      wanted != "iso-8859-15")
    return XML_STATUS_ERROR;
  for (int byte = 0; byte < 256; ++byte) {
    const char character = static_cast<char>(byte);
    encoding->map[byte] =
        static_cast<int>(characterFrom(fromCodePage(std::string_view(&character, 1)), 0));
  }
  if (wanted == "iso-8859-15") encoding->map[0xA4] = U'€';
  encoding->data = nullptr;
  encoding->convert = nullptr;
  encoding->release = nullptr;
  return XML_STATUS_OK;
}

const char* encodingOfMark(std::string_view start) {
  if (start.starts_with("\xFF\xFE") || start.starts_with("\xFE\xFF")) return "UTF-16";
  if (start.starts_with("\xEF\xBB\xBF")) return "UTF-8";
  return nullptr;
}

/// The parser is written in C: no exception may fly through it, so one that comes is kept until it
/// has stopped.
class Parser {
 public:
  Parser(InputFile& file, XmlHandler& handler)
      : file_(file), handler_(handler), block_(std::min(kBlock, file.size() + 1)) {
    XML_SetUserData(parser_.get(), this);
    XML_SetElementHandler(parser_.get(), begin, end);
    XML_SetCharacterDataHandler(parser_.get(), text);
    XML_SetStartDoctypeDeclHandler(parser_.get(), refuseDoctype);
    XML_SetUnknownEncodingHandler(parser_.get(), tellEncoding, nullptr);
  }

  void run() {
    for (bool last = false; !last;) {
      auto* buffer = static_cast<char*>(XML_GetBuffer(parser_.get(), static_cast<int>(block_)));
      if (buffer == nullptr) throw std::bad_alloc();
      const auto count = file_.read({buffer, block_});
      last = count < block_;
      if (std::exchange(atStart_, false))
        XML_SetEncoding(parser_.get(), encodingOfMark({buffer, std::min<std::size_t>(count, 3)}));
      parse(count, last);
      growIfStuck();
    }
  }

 private:
  struct Free {
    void operator()(XML_Parser parser) const { XML_ParserFree(parser); }
  };

  void parse(std::size_t count, bool last) {
    const auto status = XML_ParseBuffer(parser_.get(), static_cast<int>(count), last ? 1 : 0);
    if (thrown_) std::rethrow_exception(thrown_);
    if (status != XML_STATUS_OK) refuse();
  }

  /// What is not at its end at the end of a block is looked at again from its start with the next
  /// one: blocks that grow keep that from taking forever.
  void growIfStuck() {
    const auto place = XML_GetCurrentByteIndex(parser_.get());
    if (place != place_) {
      place_ = place;
      return;
    }
    if (block_ > kLongestToken) throw Refused{sentence("something does not come to its end")};
    block_ *= 2;
  }

  int line() const { return static_cast<int>(XML_GetCurrentLineNumber(parser_.get())); }

  std::string sentence(const std::string& what) const {
    return file_.name() + " cannot be read: " + what + " in line " + std::to_string(line()) + ".";
  }

  [[noreturn]] void refuse() const {
    const auto code = XML_GetErrorCode(parser_.get());
    const bool early = code == XML_ERROR_NO_ELEMENTS || code == XML_ERROR_UNCLOSED_TOKEN ||
                       code == XML_ERROR_PARTIAL_CHAR || code == XML_ERROR_UNCLOSED_CDATA_SECTION;
    throw Refused{sentence(early ? "it breaks off" : XML_ErrorString(code))};
  }

  template <class Call>
  static void guarded(void* self, const Call& call) {
    auto& parser = *static_cast<Parser*>(self);
    if (parser.thrown_) return;
    try {
      call(parser);
    } catch (...) {
      parser.thrown_ = std::current_exception();
      XML_StopParser(parser.parser_.get(), XML_FALSE);
    }
  }

  static void begin(void* self, const XML_Char* name, const XML_Char** attributes) {
    guarded(self, [&](Parser& parser) {
      if (parser.depth_ == kMostDepth) throw Refused{parser.sentence("elements too deep")};
      auto& open = parser.names_[parser.depth_++];
      open = withoutPrefix(name);
      for (char& letter : open)
        if (letter >= 'A' && letter <= 'Z') letter = static_cast<char>(letter + ('a' - 'A'));
      parser.handler_.begin(open, XmlAttributes(attributes), parser.line());
    });
  }

  static void end(void* self, const XML_Char*) {
    guarded(self, [](Parser& parser) { parser.handler_.end(parser.names_[--parser.depth_]); });
  }

  static void text(void* self, const XML_Char* bytes, int count) {
    guarded(self, [&](Parser& parser) {
      parser.handler_.text({bytes, static_cast<std::size_t>(count)});
    });
  }

  static void refuseDoctype(void* self, const XML_Char*, const XML_Char*, const XML_Char*, int) {
    guarded(self, [](Parser& parser) { throw Refused{parser.sentence("a DOCTYPE stands")}; });
  }

  InputFile& file_;
  XmlHandler& handler_;
  std::unique_ptr<std::remove_pointer_t<XML_Parser>, Free> parser_{XML_ParserCreate(nullptr)};
  std::array<std::string, kMostDepth> names_;
  std::size_t depth_ = 0;
  std::exception_ptr thrown_;
  std::size_t block_;
  XML_Index place_ = -1;
  bool atStart_ = true;
};

}  // namespace

std::string_view XmlAttributes::operator[](std::string_view name) const {
  for (const auto* pair = pairs_; *pair != nullptr; pair += 2)
    if (equalsInAnyCase(withoutPrefix(pair[0]), name)) return trimmed(pair[1]);
  return {};
}

void parseXml(InputFile& file, XmlHandler& handler) {
  Parser(file, handler).run();
}

}  // namespace nautrel::exchange
