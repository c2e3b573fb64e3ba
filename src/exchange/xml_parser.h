// SPDX-License-Identifier: GPL-2.0-or-later
#pragma once

#include <string>
#include <string_view>

#include "exchange/input_file.h"

namespace nautrel::exchange {

/// The attributes of the element that begins; names without prefix and case do not matter.
class XmlAttributes {
 public:
  explicit XmlAttributes(const char* const* pairs) : pairs_(pairs) {}
  /// Without blanks around it; empty if there is none.
  std::string_view operator[](std::string_view name) const;
  bool empty() const { return *pairs_ == nullptr; }

 private:
  const char* const* pairs_;
};

/// Told what a file holds, element by element. Names come in lower case and without prefix, since
/// files of all versions and makers are read.
class XmlHandler {
 public:
  virtual ~XmlHandler() = default;
  virtual void begin(std::string_view name, const XmlAttributes& attributes, int line) = 0;
  virtual void end(std::string_view name) = 0;
  virtual void text(std::string_view text) = 0;
};

/// Reads an XML file through a handler, in memory that does not grow with the file. Refuses, with
/// the line: what is no sound XML, a DOCTYPE (and so entities of its own), elements more than 64
/// deep, an unknown encoding. What the handler raises ends the reading and flies on.
void parseXml(InputFile& file, XmlHandler& handler);

}  // namespace nautrel::exchange
