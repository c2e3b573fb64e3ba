// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/metafile.h"

#include <windows.h>

#include <cstring>
#include <memory>

namespace nautrel {
namespace {

template <class Handle, auto Close>
struct Closer {
  using pointer = Handle;
  void operator()(Handle handle) const { Close(handle); }
};
using Metafile = std::unique_ptr<HENHMETAFILE, Closer<HENHMETAFILE, DeleteEnhMetaFile>>;
using Context = std::unique_ptr<HDC, Closer<HDC, DeleteDC>>;
using Bitmap = std::unique_ptr<HBITMAP, Closer<HBITMAP, DeleteObject>>;

LONG hundredthsOfMillimetre(int pixels) {
  return MulDiv(pixels, 2540, 96);
}

Metafile open(const QByteArray& bytes, MetafileKind kind) {
  const auto* data = reinterpret_cast<const BYTE*>(bytes.constData());
  const auto length = static_cast<UINT>(bytes.size());
  if (kind == MetafileKind::Enhanced) return Metafile(SetEnhMetaFileBits(length, data));
  const QSize size = metafileSize(bytes, kind);
  if (size.isEmpty()) return Metafile(SetWinMetaFileBits(length, data, nullptr, nullptr));
  const auto placeable = static_cast<UINT>(placeableLength(bytes));
  const METAFILEPICT place{MM_ANISOTROPIC, hundredthsOfMillimetre(size.width()),
                           hundredthsOfMillimetre(size.height()), nullptr};
  return Metafile(SetWinMetaFileBits(length - placeable, data + placeable, nullptr, &place));
}

QSize sizeOf(HENHMETAFILE metafile) {
  ENHMETAHEADER header{};
  GetEnhMetaFileHeader(metafile, sizeof header, &header);
  const RECTL& frame = header.rclFrame;
  return {MulDiv(frame.right - frame.left, 96, 2540), MulDiv(frame.bottom - frame.top, 96, 2540)};
}

BITMAPINFO pictureOf(QSize size) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size.width();
  info.bmiHeader.biHeight = -size.height();  // rows from the top, as QImage keeps them
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  info.bmiHeader.biCompression = BI_RGB;
  return info;
}

QImage play(HENHMETAFILE metafile, QSize size) {
  const Context context(CreateCompatibleDC(nullptr));
  const BITMAPINFO info = pictureOf(size);
  void* bits = nullptr;
  const Bitmap bitmap(CreateDIBSection(context.get(), &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  if (!context || !bitmap) return {};
  std::memset(bits, 0xFF, 4U * static_cast<size_t>(size.width()) * size.height());
  const HGDIOBJ before = SelectObject(context.get(), bitmap.get());
  const RECT whole{0, 0, size.width(), size.height()};
  const bool played = PlayEnhMetaFile(context.get(), metafile, &whole);
  GdiFlush();
  SelectObject(context.get(), before);
  if (!played) return {};
  return QImage(static_cast<const uchar*>(bits), size.width(), size.height(), QImage::Format_RGB32)
      .copy();
}

}  // namespace

QImage drawMetafile(const QByteArray& bytes, MetafileKind kind, QSize largest) {
  const Metafile metafile = open(bytes, kind);
  if (!metafile) return {};
  QSize size = metafileSize(bytes, kind);
  if (size.isEmpty()) size = sizeOf(metafile.get());
  if (size.isEmpty()) return {};
  return play(metafile.get(), size.scaled(largest, Qt::KeepAspectRatio).expandedTo({1, 1}));
}

}  // namespace nautrel
