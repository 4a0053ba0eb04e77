#pragma once

#include <QSize>
#include <QString>
#include <string>
#include <string_view>

namespace qt {

/// UTF-8 text as the toolkit takes it, and back.
QString toQString(std::string_view text);
std::string fromQString(const QString& text);

/// Twips (1440 to the inch) in logical pixels (96 to the inch), rounded, and back.
int toPixels(float twips);
int toTwips(int pixels);

/// A size in twips as logical pixels.
QSize toPixels(float width, float height);

/// The toolkit's text of one character.
QString toQString(char32_t character);

}  // namespace qt
