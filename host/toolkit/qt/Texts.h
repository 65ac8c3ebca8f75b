#pragma once

#include <QString>
#include <string>
#include <string_view>

namespace bench::qt {

/// UTF-8 to Qt and back.
QString ToQt(std::string_view text);
std::string FromQt(const QString& text);

/// A caption as Qt takes it where it marks access keys: "&" before a letter or digit marks one, any other is
/// shown as it is.
QString WithAccessKey(std::string_view caption);
/// A caption without its marks, for places that show text as it is.
QString WithoutAccessKey(std::string_view caption);
/// A tool tip. What stands in it is text, never markup.
QString PlainToolTip(std::string_view text);

}  // namespace bench::qt
