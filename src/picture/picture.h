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
class Picture {
 public:
  static constexpr int smallestPercent = 5;
  static constexpr int largestPercent = 400;
  static constexpr int largestSide = 10000;  ///< pixels; a BMP of that size is 400 MB

  bool isEmpty() const { return state_.source.isNull(); }

  /// The picture as it would be filed; null where there is none.
  const QImage& image() const { return image_; }
  int percent() const { return state_.percent; }

  /// Takes over a picture; a null one is none.
  void take(const QImage& picture);
  /// Opens a picture file (PNG, JPEG, BMP), turned as its camera says. Returns "" where that went well, else
  /// what was wrong with it; the picture before stays then.
  QString open(const QString& path);

  /// Keeps only `part` of image(), in its pixels. What lies outside the picture is left out; a part without
  /// any pixel changes nothing.
  void crop(const QRect& part);
  /// Scales the cut-out to this percentage of its own size, brought into smallestPercent to largestPercent
  /// and to what largestSide allows.
  void scale(int percent);

  bool canUndo() const { return !past_.empty(); }
  /// Goes back to before the last take, open, crop or scale.
  void undo();

  /// Writes image() as a BMP without transparency, on white, whole or not at all. Returns "" where that went
  /// well, else what was wrong.
  QString write(const QString& path) const;

 private:
  struct State {
    QImage source;
    int percent = 100;
  };

  void enter(const State& next);
  void show();
  static int allowed(const QImage& source, int percent);

  State state_;
  std::vector<State> past_;
  QImage image_;
};

}  // namespace picture
