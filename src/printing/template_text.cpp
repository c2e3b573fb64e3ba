// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/template_text.h"

#include "printing/report_fault.h"
#include "printing/template_marks.h"

namespace nautrel {
namespace {

namespace mustache = kainjow::mustache;

// Far more than a template needs; reading and filling go down as deep as the sections do.
constexpr std::size_t kDeepestSection = 50;

mustache::mustache read(const std::string& source, const std::string& what) {
  if (depthOf(templatePieces(source)) > kDeepestSection)
    throw ReportFault{what + ": more than " + std::to_string(kDeepestSection) +
                      " sections stand in each other."};
  try {
    mustache::mustache text(source);
    if (text.is_valid()) return text;
    throw ReportFault{what + ": " + text.error_message() + "."};
  } catch (const std::exception& failure) {
    throw ReportFault{what + ": " + failure.what() + "."};
  }
}

std::string plain(const std::string& text) {
  return text;
}

// A control character is nothing that paper shows; some of them the text engine takes for its own.
std::string escapedLines(const std::string& text) {
  std::string lines;
  for (const char character : mustache::html_escape(text))
    if (character == '\n')
      lines += "<br/>";
    else
      lines += static_cast<unsigned char>(character) < ' ' ? ' ' : character;
  return lines;
}

}  // namespace

TemplateText::TemplateText(const std::string& source, const std::string& what)
    : text_(read(source, what)) {
  text_.set_custom_escape(plain);
}

void TemplateText::escapeHtml() {
  text_.set_custom_escape(escapedLines);
}

std::string filled(const std::string& source, const Values& values, const std::string& what) {
  return TemplateText(source, what).fill(values);
}

std::function<std::string(int page, int pages)> footer(const std::string& source, Values values) {
  return [text = TemplateText(source, "The footer"), values = std::move(values)](
             int page, int pages) mutable {
    values["page"] = Values(std::to_string(page));
    values["pages"] = Values(std::to_string(pages));
    return text.fill(values);
  };
}

}  // namespace nautrel
