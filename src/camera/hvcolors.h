// The colors of the camera body, derived from a theme, and the application's own theme.
#pragma once

#include "kit/themes.h"

#include <QColor>
#include <QObject>

namespace HVThemes {

inline const QString brassID = QStringLiteral("mf-black-brass");

/// The application's own themes: "Medium Format Black & Brass" alone.
[[nodiscard]] const QList<CRVNTheme> &extras();

} // namespace HVThemes

/// The palette that every screen and camera part is given as `c`. The body follows the theme; the
/// display's own colors (`oled…`) don't, so that the screen looks alike under every body and only
/// its glow follows the accent. All colors are opaque sRGB.
struct HVColors {
    Q_GADGET
    Q_PROPERTY(QColor body READ body)
    Q_PROPERTY(QColor bodyHi READ bodyHi)
    Q_PROPERTY(QColor bodyLo READ bodyLo)
    Q_PROPERTY(QColor leather READ leather)
    Q_PROPERTY(QColor engrave READ engrave)
    Q_PROPERTY(QColor oled READ oled)
    Q_PROPERTY(QColor oledCard READ oledCard)
    Q_PROPERTY(QColor oledText READ oledText)
    Q_PROPERTY(QColor oledDim READ oledDim)
    Q_PROPERTY(QColor glow READ glow)
    Q_PROPERTY(QColor accent READ accent)
    Q_PROPERTY(QColor good READ good)
    Q_PROPERTY(QColor warn READ warn)
    Q_PROPERTY(QColor bad READ bad)
public:
    using RGB = CRVNTheme::RGB;

    CRVNTheme t;

    /// The palette of the selected theme.
    HVColors();
    explicit HVColors(const CRVNTheme &theme);

    [[nodiscard]] RGB bodyRGB() const;
    [[nodiscard]] RGB bodyHiRGB() const;
    [[nodiscard]] RGB bodyLoRGB() const;
    [[nodiscard]] RGB leatherRGB() const;
    [[nodiscard]] RGB engraveRGB() const;
    [[nodiscard]] RGB glowRGB() const;

    static constexpr RGB oledRGB{ 0.02, 0.027, 0.035 };
    static constexpr RGB oledCardRGB{ 0.055, 0.065, 0.08 };
    static constexpr RGB oledTextRGB{ 0.93, 0.96, 0.98 };
    static constexpr RGB oledDimRGB{ 0.68, 0.74, 0.8 };
    static constexpr RGB goodRGB{ 0.45, 0.9, 0.55 };
    static constexpr RGB warnRGB{ 1.0, 0.78, 0.35 };
    static constexpr RGB badRGB{ 1.0, 0.48, 0.45 };

    [[nodiscard]] QColor body() const { return bodyRGB().color(); }
    [[nodiscard]] QColor bodyHi() const { return bodyHiRGB().color(); }
    [[nodiscard]] QColor bodyLo() const { return bodyLoRGB().color(); }
    [[nodiscard]] QColor leather() const { return leatherRGB().color(); }
    [[nodiscard]] QColor engrave() const { return engraveRGB().color(); }
    [[nodiscard]] QColor oled() const { return oledRGB.color(); }
    [[nodiscard]] QColor oledCard() const { return oledCardRGB.color(); }
    [[nodiscard]] QColor oledText() const { return oledTextRGB.color(); }
    [[nodiscard]] QColor oledDim() const { return oledDimRGB.color(); }
    [[nodiscard]] QColor glow() const { return glowRGB().color(); }
    [[nodiscard]] QColor accent() const { return t.accent.color(); }
    [[nodiscard]] QColor good() const { return goodRGB.color(); }
    [[nodiscard]] QColor warn() const { return warnRGB.color(); }
    [[nodiscard]] QColor bad() const { return badRGB.color(); }

    friend bool operator==(const HVColors &, const HVColors &) = default;
};

/// The color of a difficulty word, in any case: green for "beginner", the glow for
/// "intermediate", amber for "advanced" and "professional", dim for anything else.
[[nodiscard]] QColor levelColor(const QString &level, const HVColors &c);
