// SPDX-License-Identifier: GPL-2.0-or-later
#include "exchange/uddf_definitions.h"

#include "exchange/plain_text.h"
#include "exchange/standard_row.h"
#include "exchange/units.h"

namespace nautrel::exchange {
namespace {

/// What has no id is nothing to link to: an empty link means nothing.
template <class Definitions, class Definition>
void define(Definitions& known, const XmlElement& element, Definition definition) {
  const auto id = element.attribute("id");
  if (!id.empty()) known.try_emplace(std::string(id), std::move(definition));
}

std::string text(const XmlElement& element, std::string_view name) {
  return std::string(element.textOf(name));
}

std::string childText(const XmlElement* element, std::string_view name) {
  const auto* child = element == nullptr ? nullptr : element->child(name);
  return child == nullptr ? "" : std::string(trimmed(child->text));
}

std::string personName(const XmlElement& person) {
  const auto* personal = person.child("personal");
  if (personal == nullptr) return childText(&person, "name");
  auto name = childText(personal, "firstname") + " " + childText(personal, "lastname");
  return collapsed(name);
}

/// Versions before 3 count in percent, later ones in fractions.
double percent(const XmlElement& mix, std::string_view gas) {
  const double part = readFileNumber(mix.textOf(gas)).value_or(0);
  return part <= 1 ? part * 100 : part;
}

std::vector<std::string> notesOf(const XmlElement& element) {
  std::vector<std::string> notes;
  const auto* found = element.child("notes");
  if (found == nullptr || trimmed(found->text).empty()) return notes;
  for (const auto line : linesOf(found->text)) notes.emplace_back(line);
  return notes;
}

/// The name of what an element holds or links to: <manufacturer><name/> or <link ref=""/>.
std::string nameIn(const XmlElement& piece, std::string_view kind, const UddfDefinitions& known) {
  const auto* found = piece.child(kind);
  if (found == nullptr) return {};
  if (auto name = childText(found, "name"); !name.empty()) return name;
  const auto* link = found->child("link");
  const auto ref = link == nullptr ? found->attribute("ref") : link->attribute("ref");
  const auto maker = known.makers.find(ref);
  return maker == known.makers.end() ? "" : maker->second;
}

bool isNoPiece(std::string_view name) {
  return name == "link" || name == "equipmentconfiguration" || name == "manufacturer" ||
         name == "shop" || name == "notes";
}

bool hasMoreThanName(const XmlElement& piece) {
  for (const auto& child : piece.children)
    if (child.name != "name" && child.name != "tankmaterial") return true;
  return false;
}

TextRow pieceOf(const XmlElement& piece, const UddfDefinitions& known) {
  StandardRow row{.elements = TextRow(Stück::Count), .notes = notesOf(piece)};
  row.elements[Stück::Gegenstand] = childText(&piece, "name");
  row.elements[Stück::Fabrikant] = nameIn(piece, "manufacturer", known);
  auto serial = childText(&piece, "serialnumber");
  row.elements[Stück::Seriennummer] = serial.empty() ? childText(&piece, "model") : serial;
  if (const auto* purchase = piece.child("purchase")) {
    row.elements[Stück::Kaufdatum] = childText(purchase, "datetime");
    row.elements[Stück::Kaufort] = nameIn(*purchase, "shop", known);
    if (const auto* price = purchase->child("price"))
      row.elements[Stück::Preis] =
          collapsed(price->text + " " + std::string(price->attribute("currency")));
  }
  return fromStandard(Tabelle::Ausrüstung, row);
}

}  // namespace

void defineSite(UddfDefinitions& known, const XmlElement& site) {
  const auto* geography = site.child("geography");
  const auto* address = geography == nullptr ? nullptr : geography->child("address");
  if (address == nullptr) address = site.child("address");
  define(known.sites, site,
         UddfDefinitions::Site{.country = address != nullptr ? childText(address, "country")
                                                             : childText(geography, "country"),
                               .location = childText(geography, "location"),
                               .city = childText(address, "city"),
                               .name = childText(&site, "name"),
                               .environment = childText(&site, "environment"),
                               .density = readFileNumber(site.textOf("density")).value_or(0)});
}

void defineMix(UddfDefinitions& known, const XmlElement& mix) {
  define(known.mixes, mix,
         UddfDefinitions::Mix{text(mix, "name"), percent(mix, "o2"), percent(mix, "he")});
}

void defineBuddy(UddfDefinitions& known, const XmlElement& buddy) {
  define(known.buddies, buddy, personName(buddy));
}

void defineImage(UddfDefinitions& known, const XmlElement& image) {
  define(known.images, image, text(image, "objectname"));
}

void defineMaker(UddfDefinitions& known, const XmlElement& maker) {
  define(known.makers, maker, childText(&maker, "name"));
}

void defineEquipment(UddfDefinitions& known, const XmlElement& owner) {
  owner.forEach(
      "suit", [&](const XmlElement& suit) { define(known.suits, suit, childText(&suit, "name")); });
  for (const auto* kind : {"manufacturer", "shop"})
    owner.forEach(kind, [&](const XmlElement& maker) { defineMaker(known, maker); });
  owner.forEach("tank", [&](const XmlElement& tank) {
    define(known.tanks, tank,
           UddfDefinitions::Tank{text(tank, "tankmaterial"), text(tank, "tankvolume")});
  });
}

TextRow cardOf(const XmlElement& owner) {
  StandardRow row{.elements = TextRow(Karte::Count), .notes = notesOf(owner)};
  const auto set = [&](int column, const XmlElement* parent, std::string_view name) {
    row.elements[column] = childText(parent, name);
  };
  const auto* personal = owner.child("personal");
  set(Karte::Vorname, personal, "firstname");
  set(Karte::Nachname, personal, "lastname");
  const auto* birth = personal == nullptr ? nullptr : personal->child("birthdate");
  set(Karte::Geb, birth, "datetime");
  const auto* address = owner.child("address");
  set(Karte::Straße, address, "street");
  set(Karte::Plz, address, "postcode");
  set(Karte::Ort, address, "city");
  set(Karte::Land, address, "country");
  const auto* contact = owner.child("contact");
  set(Karte::Tel, contact, "phone");
  if (row.elements[Karte::Tel]->empty()) set(Karte::Tel, contact, "mobilephone");
  set(Karte::Fax, contact, "fax");
  set(Karte::Email, contact, "email");
  const auto* certification = owner.find("certification");
  set(Karte::Level, certification, "level");
  set(Karte::Cernr, certification, "certificatenumber");
  set(Karte::Org, certification, "organization");
  if (const auto* date = certification == nullptr ? nullptr : certification->child("issuedate"))
    set(Karte::Cerdat, date, "datetime");
  if (const auto* teacher = certification == nullptr ? nullptr : certification->child("instructor"))
    row.elements[Karte::Inst] = personName(*teacher);
  return fromStandard(Tabelle::Benutzer, row);
}

std::vector<TextRow> equipmentOf(const XmlElement& owner, const UddfDefinitions& known) {
  std::vector<TextRow> pieces;
  const auto* equipment = owner.child("equipment");
  if (equipment == nullptr) return pieces;
  for (const auto& piece : equipment->children) {
    const bool toldByDives = piece.name == "suit" || piece.name == "tank";
    if (isNoPiece(piece.name) || (toldByDives && !hasMoreThanName(piece))) continue;
    auto row = pieceOf(piece, known);
    if (piece.child("name") != nullptr || !isBlank(row)) pieces.push_back(std::move(row));
  }
  return pieces;
}

}  // namespace nautrel::exchange
