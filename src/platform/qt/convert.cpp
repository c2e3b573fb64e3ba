#include "platform/qt/convert.h"

namespace nautrel {

int toQtPosition(const QString& text, std::size_t characters) {
  int position = 0;
  for (; characters > 0 && position < text.size(); --characters)
    position += text.at(position).isHighSurrogate() ? 2 : 1;
  return qMin(position, static_cast<int>(text.size()));
}

std::size_t fromQtPosition(const QString& text, int position) {
  std::size_t characters = 0;
  for (int i = 0; i < position && i < text.size(); ++i)
    if (!text.at(i).isLowSurrogate()) ++characters;
  return characters;
}

}  // namespace nautrel
