#pragma once

#include <QString>

#include <string>

/// What is new in a release, in its publisher's words: foreign text, of which only this much is kept.
namespace quillon::ReleaseNotes {

/// What is longer is cut. In characters.
inline constexpr qsizetype longest = 64 * 1024;

/// HTML of a few plain elements: p, br, h4, ul, ol, li, b, i, code, and links to pages of the web (see
/// `WebAddress::page`), which tell their address as their title. No other attribute, no picture, no style, no
/// script is left; every element is closed. Broken HTML gives what can be made of it.
std::string fromHtml(QStringView html);

/// The same from plain text, its lines as they are.
std::string fromPlainText(QStringView text);

} // namespace quillon::ReleaseNotes
