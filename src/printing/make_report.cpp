// SPDX-License-Identifier: GPL-2.0-or-later
#include "printing/make_report.h"

#include <filesystem>
#include <fstream>
#include <sstream>

#include "platform/errors.h"
#include "platform/files.h"
#include "printing/list_report.h"
#include "printing/page_report.h"
#include "store/contract.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;

constexpr std::uintmax_t kLongestTemplate = 4 << 20;

std::string readTemplate(const std::string& path) {
  static constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  const auto file = nativePath(path);
  std::error_code error;
  // A pipe or a device would be waited for.
  const bool isFile = fs::is_regular_file(file, error);
  if (isFile && fs::file_size(file, error) > kLongestTemplate)
    throw ReportFault{"It is too long for a template."};
  std::ostringstream content;
  if (!isFile || !(content << std::ifstream(file, std::ios::binary).rdbuf()))
    throw ReportFault{"There is no such file, or it is empty."};
  auto source = content.str();
  if (source.starts_with(kByteOrderMark)) source.erase(0, kByteOrderMark.size());
  return source;
}

/// What every template may name, beside the columns.
Values commonValues(const DateTime& printed, const Locale& locale) {
  Values values;
  values["date"] = Values(dateText(printed, locale));
  values["printed"] = Values(generalDate(printed, locale));
  return values;
}

ReportDocument fill(const ReportJob& job, const DateTime& printed, const Locale& locale) {
  const auto source = readTemplate(job.templatePath);
  const SelectionFormula selection(job.selectionFormula, locale);
  const auto folder = nativePath(job.templatePath).parent_path();
  Workspace workspace;
  auto database = workspace.OpenDatabase(utf8(folder / kLogbookFile));
  auto values = commonValues(printed, locale);
  const auto start = source.find_first_not_of(" \t\r\n");
  if (start != std::string::npos && source[start] == '<') {
    auto page = fillPage(source, std::move(database), selection, std::move(values), locale);
    page.folder = utf8(folder);
    return page;
  }
  return fillList(source, std::move(database), selection, std::move(values), locale);
}

}  // namespace

ReportDocument makeReport(const ReportJob& job, const DateTime& printed, const Locale& locale) {
  const auto fault = [&](const std::string& text) {
    return ReportFault{"The report " + job.templatePath + " cannot be made.\n\n" + text};
  };
  try {
    return fill(job, printed, locale);
  } catch (const ReportFault& inner) {
    throw fault(inner.text);
  } catch (const RunTimeError& failure) {
    throw fault(failure.text);
  }
}

}  // namespace nautrel
