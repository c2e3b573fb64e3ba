// SPDX-License-Identifier: GPL-2.0-or-later
#include "look/pictures/pictures.h"

#include <gtest/gtest.h>

#include <QBuffer>
#include <QColor>
#include <QDataStream>
#include <QFile>
#include <QPainter>
#include <QTemporaryDir>
#include <random>

#include "support/failure.h"

#ifndef Q_OS_WIN
#include <sys/stat.h>
#endif

namespace nautrel {
namespace {

template <class Number>
QByteArray little(std::initializer_list<Number> numbers) {
  QByteArray bytes;
  QDataStream out(&bytes, QIODevice::WriteOnly);
  out.setByteOrder(QDataStream::LittleEndian);
  for (const Number number : numbers) out << number;
  return bytes;
}
QByteArray words(std::initializer_list<quint16> numbers) {
  return little(numbers);
}
QByteArray longs(std::initializer_list<quint32> numbers) {
  return little(numbers);
}

constexpr quint16 kInch = 1440;

/// A red field over the left half of 2 by 1 inches, counted downwards from 0 or upwards from an
/// inch below.
QByteArray windowsMetafile(bool upwards = false) {
  const quint16 top = upwards ? kInch : 0;
  const auto height = static_cast<quint16>(upwards ? -kInch : kInch);
  return longs({0x9AC6CDD7}) + words({0, 0, 0, 2 * kInch, kInch, kInch, 0, 0}) +
         words({0x9AC6 ^ 0xCDD7 ^ 2 * kInch}) + words({1, 9, 0x300, 40, 0, 1, 7, 0, 0}) +
         words({5, 0, 0x20B, top, 0}) + words({5, 0, 0x20C, height, 2 * kInch}) +
         words({7, 0, 0x2FC, 0, 0x00FF, 0x0000, 0}) + words({4, 0, 0x12D, 0}) +
         words({7, 0, 0x41B, kInch, kInch, 0, 0}) + words({3, 0, 0});
}

/// The same as an enhanced metafile.
QByteArray enhancedMetafile() {
  return longs({1, 88, 0, 0, 192, 96, 0, 0, 5080, 2540, 0x464D4520}) +
         longs({0x10000, 192, 5, 2, 0, 0, 0, 1920, 1080, 508, 286}) +
         longs({39, 24, 1, 0, 0x000000FF, 0}) + longs({37, 12, 1}) + longs({37, 12, 0x80000008}) +
         longs({43, 24, 0, 0, 96, 96}) + longs({14, 20, 0, 16, 20});
}

QByteArray photograph(QSize size, const char* format = "jpg") {
  QImage image(size, QImage::Format_RGB32);
  image.fill(Qt::blue);
  QPainter(&image).fillRect(0, 0, size.width() / 2, size.height(), Qt::red);
  QByteArray bytes;
  QBuffer buffer(&bytes);
  buffer.open(QIODevice::WriteOnly);
  image.save(&buffer, format, 90);
  return bytes;
}

bool isRed(const QColor& color) {
  return color.red() > 200 && color.blue() < 60;
}

class PicturesTest : public testing::Test {
 protected:
  QString write(const QString& name, const QByteArray& bytes) {
    QString path = folder_.filePath(name);
    QFile file(path);
    EXPECT_TRUE(file.open(QIODevice::WriteOnly));
    file.write(bytes);
    return path;
  }

  int failureOf(const QString& path) {
    return nautrel::failureOf([&] { pictures_.load(path); });
  }

  QTemporaryDir folder_;
  Pictures pictures_{{400, 300}};
};

TEST_F(PicturesTest, LoadsEveryKindAtWhatAScreenCanShow) {
  const QSize big(800, 600);
  const QSize small(192, 96);
  const QByteArray twoDots = QByteArray::fromHex(
      "474946383961020001008000"
      "00ff00000000ff"
      "2c000000000200010000"
      "0202440a003b");
  const struct {
    const char* name;
    QByteArray bytes;
    QSize size;
    QColor right;
  } cases[] = {
      {"a.jpg", photograph(big), {400, 300}, Qt::blue},
      {"a.dib", photograph(small, "bmp"), small, Qt::blue},
      {"jpg named.bmp", photograph(small), small, Qt::blue},
      {"a.wmf", windowsMetafile(), {400, 200}, Qt::white},
      {"upwards.wmf", windowsMetafile(true), {400, 200}, Qt::white},
      {"plain.wmf", windowsMetafile().mid(22), {400, 200}, Qt::white},
      {"a.emf", enhancedMetafile(), {400, 200}, Qt::white},
      {"a.gif", twoDots, {2, 1}, Qt::blue},
  };
  for (const auto& [name, bytes, size, right] : cases) {
    const QImage image = pictures_.load(write(name, bytes));
    ASSERT_EQ(image.size(), size) << name;
    const int middle = size.height() / 2;
    EXPECT_TRUE(isRed(image.pixelColor(size.width() / 4, middle))) << name;
    const QColor there = image.pixelColor(size.width() * 3 / 4, middle);
    EXPECT_NEAR(there.red(), right.red(), 20) << name;
    EXPECT_NEAR(there.blue(), right.blue(), 20) << name;
  }
}

/// The red field with a text under it, as the 8-bit code page writes it.
QByteArray lettered(const QByteArray& text) {
  const QByteArray even = text.size() % 2 == 0 ? text : text + '\0';
  const auto length = static_cast<quint16>(text.size());
  QByteArray field = windowsMetafile().chopped(6);
  field[34] = 60;  // the longest record
  return field + words({quint16(6 + even.size() / 2), 0, 0x521, length}) + even +
         words({kInch / 2, kInch}) + words({3, 0, 0});
}

TEST_F(PicturesTest, DrawsAMetafileWhateverItsTextsHold) {
  for (const QByteArray& text :
       {QByteArray("H\xF6he"), QByteArray("\x80 5"), QByteArray("Chris & Pat"), QByteArray("a<b"),
        QByteArray("</text>x"), QByteArray("\x01\x02"), QByteArray("]]>\"'")}) {
    const QString path = write("text.wmf", lettered(text));
    ASSERT_EQ(failureOf(path), 0) << text.constData();
    EXPECT_TRUE(isRed(pictures_.load(path).pixelColor(20, 20))) << text.constData();
  }
}

TEST_F(PicturesTest, LeavesBlankWhatABitmapCutShortDoesNotFill) {
  const QByteArray whole = photograph({200, 150}, "bmp");
  for (int round = 0; round < 3; ++round) {
    std::vector<char> before(200 * 150 * 4, 0x77);  // what memory may hold
    before.clear();
    before.shrink_to_fit();
    const QImage image =
        pictures_.load(write(QString("cut%1.bmp").arg(round), whole.first(whole.size() / 3)));
    EXPECT_EQ(image.pixelColor(50, 10), QColor(Qt::white));
    EXPECT_TRUE(isRed(image.pixelColor(50, 140)));
  }
}

TEST_F(PicturesTest, FitsAGifWhoseFirstPartIsSmallerThanIt) {
  const QByteArray tall = QByteArray::fromHex(
      "4749463839610200581b8000"
      "00ff00000000ff"
      "2c000000000200010000"
      "0202440a003b");
  const QImage image = pictures_.load(write("tall.gif", tall));
  EXPECT_LE(image.height(), 300);
  EXPECT_GE(image.width(), 1);
}

TEST_F(PicturesTest, TurnsAPhotographAsTheCameraWasHeld) {
  QByteArray onItsSide = photograph({800, 600});
  onItsSide.insert(2, QByteArray::fromHex("ffe10022457869660000"
                                          "4d4d002a00000008"
                                          "0001011200030000000100060000"
                                          "00000000"));
  const QImage image = pictures_.load(write("a.jpg", onItsSide));
  ASSERT_EQ(image.size(), QSize(225, 300));
  EXPECT_TRUE(isRed(image.pixelColor(112, 20)));
  EXPECT_FALSE(isRed(image.pixelColor(112, 280)));
}

TEST_F(PicturesTest, TellsWhatIsNotThereFromWhatIsNoPicture) {
  EXPECT_EQ(failureOf({}), 53);
  EXPECT_EQ(failureOf(folder_.filePath("gone.jpg")), 53);
  EXPECT_EQ(failureOf(folder_.path()), 481);
#ifndef Q_OS_WIN
  const QString pipe = folder_.filePath("pipe.jpg");
  ASSERT_EQ(mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
  EXPECT_EQ(failureOf(pipe), 481);
#endif
  QByteArray boundless = photograph({64, 64});
  boundless.replace(boundless.indexOf("\xFF\xC0") + 5, 4, QByteArray::fromHex("ff00ff00"));
  const std::pair<const char*, QByteArray> rubbish[] = {
      {"empty.jpg", {}},
      {"head.bmp", "BM"},
      {"head.jpg", "\xFF\xD8\xFF\xE0"},
      {"head.gif", "GIF89a"},
      {"boundless.jpg", boundless},
      {"drawing.jpg", photograph({8, 8}, "png")},
      {"cut.wmf", windowsMetafile().first(30)},
      {"cut.emf", enhancedMetafile().first(60)},
  };
  for (const auto& [name, bytes] : rubbish) EXPECT_EQ(failureOf(write(name, bytes)), 481) << name;
}

TEST_F(PicturesTest, SurvivesSpoiledMetafiles) {
  std::mt19937 random(7);
  for (const QByteArray& whole : {windowsMetafile(), enhancedMetafile()})
    for (int round = 0; round < 40; ++round) {
      QByteArray spoiled = whole;
      for (int hit = 0; hit < 4; ++hit)
        spoiled[static_cast<qsizetype>(4 + random() % (spoiled.size() - 4))] =
            static_cast<char>(random());
      const int failure = failureOf(write("spoiled", spoiled));
      EXPECT_TRUE(failure == 0 || failure == 481) << failure;
    }
}

TEST_F(PicturesTest, LoadsAgainOnlyWhatHasChanged) {
  const QString path = write("a.bmp", photograph({40, 20}, "bmp"));
  const auto first = pictures_.load(path).cacheKey();
  EXPECT_EQ(pictures_.load(path).cacheKey(), first);
  write("a.bmp", photograph({20, 40}, "bmp").append('\0'));
  EXPECT_EQ(pictures_.load(path).size(), QSize(20, 40));
  QFile::remove(path);
  EXPECT_EQ(failureOf(path), 53);
}

}  // namespace
}  // namespace nautrel
