#include <quillon/app/platform/fake/fake_appearance.h>
#include <quillon/app/views/components/key_caps.h>
#include <quillon/app/views/components/theme_source.h>

#include <gtest/gtest.h>

#include <QImage>

#include <algorithm>
#include <cmath>
#include <string>
#include <vector>

namespace quillon {
namespace {

/// The pixels of one cap, as a screen with `ratio` device pixels per point shows them.
class CapPixels {
  public:
    /// Of the first cap of the shortcut.
    CapPixels(const KeyCaps& caps, const Shortcut& shortcut, double width, double ratio) : m_ratio(ratio) {
        m_image = QImage(
            (QSizeF(caps.width(shortcut), caps.height()) * ratio).toSize() + QSize(2, 2),
            QImage::Format_ARGB32_Premultiplied);
        m_image.setDevicePixelRatio(ratio);
        m_image.fill(Qt::transparent);
        QPainter painter(&m_image);
        caps.paint(painter, {0, 0}, shortcut);
        painter.end();
        m_size = (QSizeF(width, caps.height()) * ratio).toSize();
    }

    /// How far the middle of the ink is from the middle of the cap, in device pixels.
    QPointF inkOffset() const {
        return ink().center() - QPointF(m_size.width() / 2.0, m_size.height() / 2.0);
    }

    /// What is drawn on the cap, in device pixels; a pixel at the edge that is half covered counts half.
    QRectF ink() const {
        std::vector<double> columns(static_cast<std::size_t>(m_size.width()));
        std::vector<double> rows(static_cast<std::size_t>(m_size.height()));
        const int border = static_cast<int>(std::ceil(m_ratio));
        for (int y = border; y < m_size.height() - border; ++y) {
            for (int x = border; x < m_size.width() - border; ++x) {
                const double covered = coverage(x, y);
                double& column = columns[static_cast<std::size_t>(x)];
                double& row = rows[static_cast<std::size_t>(y)];
                column = std::max(column, covered);
                row = std::max(row, covered);
            }
        }
        const auto [left, right] = extent(columns);
        const auto [top, bottom] = extent(rows);
        return {QPointF(left, top), QPointF(right, bottom)};
    }

  private:
    double coverage(int x, int y) const {
        const double ground = 255 * 0.25; // a little over the cap's own border and fill
        return std::max(0.0, (qAlpha(m_image.pixel(x, y)) - ground) / (255 - ground));
    }

    static std::pair<double, double> extent(const std::vector<double>& covered) {
        const auto isInk = [](double part) { return part > 0; };
        const auto first = std::ranges::find_if(covered, isInk);
        if (first == covered.end())
            return {0, 0};
        auto last = covered.end() - 1;
        while (!isInk(*last))
            --last;
        return {
            static_cast<double>(first - covered.begin()) + 1 - *first,
            static_cast<double>(last - covered.begin()) + *last};
    }

    double m_ratio;
    QImage m_image;
    QSize m_size;
};

/// At one scale and one size of the desktop's font in points.
class KeyCapInkTest : public testing::TestWithParam<std::tuple<double, double>> {
  protected:
    KeyCapInkTest() { appearance.set({ColourScheme::light, "DejaVu Sans", points()}); }

    double ratio() const { return std::get<0>(GetParam()); }
    double points() const { return std::get<1>(GetParam()); }

    CapPixels key(const Key& key) const {
        const Shortcut alone{{}, key};
        return {caps, alone, caps.width(alone), ratio()};
    }
    CapPixels character(char c) const { return key(Key::character(std::string(1, c))); }
    CapPixels modifier(Modifiers modifier) const {
        const Key a = Key::character("A");
        const double width = caps.width({modifier, a}) - caps.width({{}, a}) - 3;
        return {caps, {modifier, a}, width, ratio()};
    }

    FakeAppearance appearance;
    ThemeSource themes{appearance};
    const KeyCaps caps{
        Theme::fromLook({ColourScheme::light, "DejaVu Sans", points()}, QFont()),
        Theme::fromLook({ColourScheme::light, "DejaVu Sans", points()}, QFont()).keySize()};
};

/// Ink is drawn from whole pixels, so it can be half a pixel off; the rest is the font's soft edges.
constexpr double mostOff = 0.7;

void expectCentred(const CapPixels& cap, const std::string& name) {
    ASSERT_FALSE(cap.ink().isEmpty()) << name;
    EXPECT_LE(std::abs(cap.inkOffset().x()), mostOff) << name << " is off sideways";
    EXPECT_LE(std::abs(cap.inkOffset().y()), mostOff) << name << " is too high or too low";
}

TEST_P(KeyCapInkTest, ModifiersAreInTheMiddleOfTheirCaps) {
    for (const Modifiers one : {Modifiers::control, Modifiers::option, Modifiers::shift, Modifiers::command})
        expectCentred(modifier(one), Modifiers(one).glyphs());
}

TEST_P(KeyCapInkTest, SpecialKeysAreInTheMiddleOfTheirCaps) {
    for (const SpecialKey special : allSpecialKeys) {
        if (special == SpecialKey::space || special == SpecialKey::help)
            continue; // words, of which some letters reach below the line
        expectCentred(key(Key::special(special)), std::string(glyph(special)));
    }
}

TEST_P(KeyCapInkTest, LettersAndDigitsAreInTheMiddleOfTheirCaps) {
    for (const char c : std::string("ABCDEFGHIKLMNOPRSTUVWXYZ0123456789"))
        expectCentred(character(c), std::string(1, c));
}

TEST_P(KeyCapInkTest, SignsWithoutALineAreInTheMiddleOfTheirCaps) {
    for (const char c : std::string("-=+*/\\|<>()[]{}?!@#$%&~;:"))
        expectCentred(character(c), std::string(1, c));
}

TEST_P(KeyCapInkTest, WordsAndLettersWithTailsStandOnTheLineOfTheOthers) {
    const double top = character('H').ink().top();
    for (const char c : std::string("JQ")) {
        EXPECT_LE(std::abs(character(c).inkOffset().x()), mostOff) << c;
        EXPECT_NEAR(character(c).ink().top(), top, 1) << c;
    }
    for (const SpecialKey word : {SpecialKey::space, SpecialKey::help}) {
        EXPECT_LE(std::abs(key(Key::special(word)).inkOffset().x()), mostOff) << glyph(word);
        EXPECT_NEAR(key(Key::special(word)).ink().top(), top, 1 + 0.1 * points()) << glyph(word);
    }
}

TEST_P(KeyCapInkTest, CommasAndAccentsKeepTheHeightThatTellsThemApart) {
    for (const char c : std::string(",._"))
        EXPECT_GT(character(c).inkOffset().y(), 2 * ratio()) << c;
    for (const char c : std::string("'\"`^"))
        EXPECT_LT(character(c).inkOffset().y(), -2 * ratio()) << c;
    for (const char c : std::string(",.'\"`^_"))
        EXPECT_LE(std::abs(character(c).inkOffset().x()), mostOff) << c;
}

TEST_P(KeyCapInkTest, TheControlSignIsNotTakenForTheCaret) {
    const QRectF control = modifier(Modifiers::control).ink();
    const QRectF caret = character('^').ink();
    EXPECT_GE(control.width(), 1.2 * caret.width());
    EXPECT_GE(control.height(), 1.2 * caret.height());
}

TEST_P(KeyCapInkTest, PictogramsAreAsLargeAsCapitals) {
    const double capital = character('H').ink().height();
    for (const Modifiers one : {Modifiers::option, Modifiers::shift, Modifiers::command}) {
        EXPECT_GE(modifier(one).ink().height(), 0.9 * capital) << Modifiers(one).glyphs();
        EXPECT_LE(modifier(one).ink().height(), 1.5 * capital) << Modifiers(one).glyphs();
    }
}

TEST_P(KeyCapInkTest, TheLineThatLettersStandOnIsTold) {
    EXPECT_NEAR(caps.baseline(ratio()) * ratio(), character('H').ink().bottom(), 0.3);
}

INSTANTIATE_TEST_SUITE_P(
    Scales, KeyCapInkTest,
    testing::Combine(testing::Values(1.0, 1.25, 1.5, 2.0), testing::Values(9.0, 10.0, 11.0, 13.0)));

} // namespace
} // namespace quillon
