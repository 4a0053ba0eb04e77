#pragma once

#include <QImage>
#include <QRect>
#include <QString>
#include <vector>

namespace picture {

/// A picture on its way into a job: taken over, cut out and scaled, with every step to be undone.
///
/// Scaling is never final: each percentage is taken of the cut-out as it came, so that going down and up
/// again costs no sharpness.
///
/// Every step that may fail returns "" where it went well, else what was wrong, in Japanese; the picture
/// stays what it was then.
class Picture {
 public:
  static constexpr int smallestPercent = 5;
  static constexpr int largestPercent = 400;
  static constexpr int largestSide = 32767;           ///< pixels; the toolkit draws no longer ones
  static constexpr qint64 largestArea = 400'000'000;  ///< pixels, 20,000 × 20,000; a BMP of them is 1.2 GB

  bool isEmpty() const { return state_.source.isNull(); }

  /// The picture as it would be filed; null where there is none.
  const QImage& image() const { return image_; }
  int percent() const { return state_.percent; }

  /// Takes over a picture; a null one is none. One beyond largestSide or largestArea is refused.
  QString take(const QImage& picture);
  /// Opens a picture file (PNG, JPEG, BMP), turned as its camera says. Refused are files that hold no whole
  /// picture and pictures beyond largestSide or largestArea.
  QString open(const QString& path);

  /// Keeps only `part` of image(), in its pixels. What lies outside the picture is left out; a part without
  /// any pixel changes nothing.
  QString crop(const QRect& part);
  /// Scales the cut-out to this percentage of its own size, brought into smallestPercent to largestPercent
  /// and to what largestSide and largestArea allow.
  QString scale(int percent);

  bool canUndo() const { return !past_.empty(); }
  /// Goes back to before the last take, open, crop or scale.
  void undo();

  /// Writes image() as a BMP without transparency, on white, whole or not at all.
  QString write(const QString& path) const;

 private:
  struct State {
    QImage source;
    int percent = 100;
  };

  QString enter(State next);
  static QImage scaled(const State& state);
  static int allowed(const QSize& size, int percent);

  State state_;
  std::vector<State> past_;
  QImage image_;
};

}  // namespace picture
