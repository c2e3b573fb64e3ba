// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/uddf_owner.h"

#include <algorithm>
#include <initializer_list>

namespace nautrel::exchange {
namespace {

/// Writes the elements of a row, those left out that have no text.
class RowWriter {
 public:
  RowWriter(XmlWriter& xml, const StandardRow& row) : xml_(xml), row_(row) {}

  std::string_view text(int column) const {
    const auto& element = row_.elements[static_cast<std::size_t>(column)];
    return element ? std::string_view(*element) : std::string_view();
  }
  bool any(std::initializer_list<int> columns) const {
    return std::any_of(columns.begin(), columns.end(),
                       [&](int column) { return !text(column).empty(); });
  }
  void leaf(std::string_view name, int column) { xml_.leafIfAny(name, text(column)); }
  void required(std::string_view name, int column) { xml_.leaf(name, text(column)); }
  void date(std::string_view name, int column) {
    if (text(column).empty()) return;
    xml_.begin(name);
    leaf("datetime", column);
    xml_.end();
  }
  void named(std::string_view name, const std::string& id, int column) {
    if (text(column).empty()) return;
    xml_.begin(name, {{"id", id}});
    leaf("name", column);
    xml_.end();
  }
  void notes() {
    if (row_.notes.empty()) return;
    xml_.begin("notes");
    for (const auto& line : row_.notes) xml_.leaf("para", line);
    xml_.end();
  }

 private:
  XmlWriter& xml_;
  const StandardRow& row_;
};

void writePersonal(XmlWriter& xml, RowWriter& owner) {
  xml.begin("personal");
  owner.required("firstname", Karte::Vorname);
  owner.required("lastname", Karte::Nachname);
  owner.date("birthdate", Karte::Geb);
  xml.end();
}

void writeAddress(XmlWriter& xml, RowWriter& owner) {
  if (!owner.any({Karte::Straße, Karte::Ort, Karte::Plz, Karte::Land})) return;
  xml.begin("address");
  owner.leaf("street", Karte::Straße);
  owner.leaf("city", Karte::Ort);
  owner.leaf("postcode", Karte::Plz);
  owner.required("country", Karte::Land);
  xml.end();
}

void writeContact(XmlWriter& xml, RowWriter& owner) {
  if (!owner.any({Karte::Tel, Karte::Fax, Karte::Email})) return;
  xml.begin("contact");
  owner.leaf("phone", Karte::Tel);
  owner.leaf("fax", Karte::Fax);
  owner.leaf("email", Karte::Email);
  xml.end();
}

void writeInstructor(XmlWriter& xml, RowWriter& owner) {
  if (!owner.any({Karte::Inst})) return;
  xml.begin("instructor", {{"id", "inst-1"}});
  xml.begin("personal");
  xml.empty("firstname");
  owner.leaf("lastname", Karte::Inst);
  xml.end();
  xml.end();
}

void writeEducation(XmlWriter& xml, RowWriter& owner) {
  if (!owner.any({Karte::Level, Karte::Cernr, Karte::Org, Karte::Inst, Karte::Cerdat})) return;
  xml.begin("education");
  xml.begin("certification");
  owner.leaf("level", Karte::Level);
  owner.leaf("certificatenumber", Karte::Cernr);
  owner.leaf("organization", Karte::Org);
  writeInstructor(xml, owner);
  owner.date("issuedate", Karte::Cerdat);
  xml.end();
  xml.end();
}

void writePrice(XmlWriter& xml, std::string_view price) {
  const auto blank = price.find(' ');
  if (blank == std::string_view::npos) return;
  xml.leaf("price", price.substr(0, blank), {{"currency", price.substr(blank + 1)}});
}

}  // namespace

void writeOwnerBeforeEquipment(XmlWriter& xml, const StandardRow& card) {
  RowWriter owner(xml, card);
  writePersonal(xml, owner);
  writeAddress(xml, owner);
  writeContact(xml, owner);
}

void writeOwnerAfterEquipment(XmlWriter& xml, const StandardRow& card) {
  RowWriter owner(xml, card);
  writeEducation(xml, owner);
  owner.notes();
}

void writePiece(XmlWriter& xml, const StandardRow& piece, int number) {
  const auto id = [&](const char* kind) { return kind + std::to_string(number); };
  RowWriter gear(xml, piece);
  xml.begin("variouspieces", {{"id", id("gear-")}});
  gear.required("name", Stück::Gegenstand);
  gear.named("manufacturer", id("mfr-"), Stück::Fabrikant);
  gear.leaf("serialnumber", Stück::Seriennummer);
  if (gear.any({Stück::Kaufdatum, Stück::Preis, Stück::Kaufort})) {
    xml.begin("purchase");
    gear.leaf("datetime", Stück::Kaufdatum);
    writePrice(xml, gear.text(Stück::Preis));
    gear.named("shop", id("shop-"), Stück::Kaufort);
    xml.end();
  }
  gear.notes();
  xml.end();
}

}  // namespace nautrel::exchange
