#include "printing/report_document.h"

#include <filesystem>
#include <fstream>
#include <kainjow/mustache.hpp>
#include <sstream>

#include "platform/errors.h"
#include "platform/files.h"
#include "printing/list_template.h"
#include "printing/selection_formula.h"
#include "store/contract.h"
#include "store/database.h"

namespace nautrel {
namespace {

namespace fs = std::filesystem;
namespace mustache = kainjow::mustache;
using mustache::data;

/// Parts the cells of a row that is rendered as one text; no value holds it.
constexpr char kCellEnd = '\x1F';

std::string readTemplate(const std::string& path) {
  static constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";
  std::ifstream file(nativePath(path), std::ios::binary);
  std::ostringstream content;
  if (!file || !(content << file.rdbuf()))
    throw ReportFault{"There is no such file, or it is empty."};
  auto source = content.str();
  if (source.starts_with(kByteOrderMark)) source.erase(0, kByteOrderMark.size());
  return source;
}

std::string databaseBeside(const std::string& path) {
  const auto file = (nativePath(path).parent_path() / kLogbookFile).u8string();
  return {file.begin(), file.end()};
}

// Empty text counts as No, so that a template can leave out what was not filled in.
data shown(const Value& value, const Locale& locale) {
  if (!value.isText() && !value.isNull()) return data(value.isYes());
  auto text = value.joined(locale);
  return text.empty() ? data(false) : data(std::move(text));
}

/// The rows of a table as a template sees them, with the columns that it names.
class Rows {
 public:
  Rows(const Database& database, std::string_view table, const std::string& source,
       const SelectionFormula& selection, const Locale& locale)
      : selection_(selection.concerns(table) ? &selection : nullptr),
        columns_(namedColumns(table, source)),
        rows_(Database(database).OpenRecordset(table, columns_)),
        locale_(locale) {}

  template <class Visit>
  void each(Visit&& visit) {
    for (; !rows_.Eof(); rows_.MoveNext())
      if (selected()) visit(current());
  }

 private:
  Columns namedColumns(std::string_view name, const std::string& source) const {
    Columns named;
    for (const auto& table : logbookTables())
      for (const auto& column : table.columns)
        if (table.name == name &&
            (source.find(column.name) != std::string::npos || selectsBy(column.name)))
          named.emplace_back(column.name);
    return named;
  }
  bool selectsBy(std::string_view column) const {
    return selection_ != nullptr && selection_->column() == column;
  }
  bool selected() const {
    return selection_ == nullptr ||
           selection_->selects(rows_.Fields(selection_->column()).joined(locale_));
  }
  data current() const {
    data row;
    for (const auto& column : columns_) row[column] = shown(rows_.Fields(column), locale_);
    return row;
  }

  const SelectionFormula* selection_;
  Columns columns_;
  Recordset rows_;
  const Locale& locale_;
};

mustache::mustache compile(const std::string& text, const std::string& what) {
  try {
    mustache::mustache compiled(text);
    if (compiled.is_valid()) return compiled;
    throw ReportFault{what + ": " + compiled.error_message() + "."};
  } catch (const std::exception& failure) {
    throw ReportFault{what + ": " + failure.what() + "."};
  }
}

std::string plain(const std::string& text) {
  return text;
}

std::string rendered(const std::string& text, const data& values, const std::string& what) {
  auto compiled = compile(text, what);
  compiled.set_custom_escape(plain);
  return compiled.render(values);
}

std::string escapedLines(const std::string& text) {
  std::string lines;
  for (const char character : mustache::html_escape(text))
    if (character == '\n')
      lines += "<br/>";
    else
      lines += character;
  return lines;
}

/// What every template may name, beside the columns.
data commonValues(const DateTime& printed, const Locale& locale) {
  data values;
  values["date"] = data(dateText(printed, locale));
  values["printed"] = data(generalDate(printed, locale));
  return values;
}

PageReport fillPage(const std::string& source, Database database, const SelectionFormula& selection,
                    data values, const Locale& locale) {
  for (const auto& table : logbookTables()) {
    if (source.find(table.name) == std::string::npos) continue;
    data rows(data::type::list);
    Rows(database, table.name, source, selection, locale).each([&](const data& row) {
      rows.push_back(row);
    });
    values[std::string(table.name)] = std::move(rows);
  }
  auto page = compile(source, "The page");
  page.set_custom_escape(escapedLines);
  return {page.render(values)};
}

/// Renders rows, all cells of one at a time.
class RowRenderer {
 public:
  RowRenderer(const ListTemplate& list, std::vector<std::string>& cells)
      : row_(compile(joined(list), "The columns")), cells_(cells) {
    row_.set_custom_escape(plain);
  }

  void add(const data& row) {
    const auto text = row_.render(row);
    for (std::size_t start = 0; start < text.size();) {
      const auto end = text.find(kCellEnd, start);
      cells_.push_back(text.substr(start, end - start));
      start = end + 1;
    }
  }

 private:
  static std::string joined(const ListTemplate& list) {
    std::string row;
    for (std::size_t column = 0; column < list.cells.size(); ++column) {
      compile(list.cells[column], "Column \"" + list.layout.columns[column].head + "\"");
      row += list.cells[column] + kCellEnd;
    }
    return row;
  }

  mustache::mustache row_;
  std::vector<std::string>& cells_;
};

ListReport fillList(const std::string& source, Database database, const SelectionFormula& selection,
                    data values, const Locale& locale) {
  const auto list = parseListTemplate(source);
  ListReport report;
  report.layout = list.layout;
  RowRenderer renderer(list, report.cells);
  data last(false);
  values["first"] = data(false);
  Rows(database, list.table, source, selection, locale).each([&](data row) {
    if (report.cells.empty()) values["first"] = data(row);
    renderer.add(row);
    last = std::move(row);
  });
  values["last"] = std::move(last);
  values["count"] = data(std::to_string(report.rows()));
  values["several"] = data(report.rows() > 1);
  report.title = rendered(list.title, values, "The title");
  report.subtitle = rendered(list.subtitle, values, "The subtitle");
  rendered(list.footer, values, "The footer");
  report.footer = [footer = list.footer, values](int page, int pages) mutable {
    values["page"] = data(std::to_string(page));
    values["pages"] = data(std::to_string(pages));
    return rendered(footer, values, "The footer");
  };
  return report;
}

ReportDocument fill(const ReportJob& job, const DateTime& printed, const Locale& locale) {
  const auto source = readTemplate(job.templatePath);
  const SelectionFormula selection(job.selectionFormula, locale);
  Workspace workspace;
  auto database = workspace.OpenDatabase(databaseBeside(job.templatePath));
  auto values = commonValues(printed, locale);
  const auto start = source.find_first_not_of(" \t\r\n");
  if (start != std::string::npos && source[start] == '<')
    return fillPage(source, std::move(database), selection, std::move(values), locale);
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
