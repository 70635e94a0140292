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
/// its glow follows the accent. All colors are opaque sRGB but the tints.
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
    Q_PROPERTY(QColor hover READ hover)
    Q_PROPERTY(QColor quiet READ quiet)
    Q_PROPERTY(QColor quietUnderPointer READ quietUnderPointer)
    Q_PROPERTY(QColor track READ track)
    Q_PROPERTY(QColor divider READ divider)
    Q_PROPERTY(QColor cardEdge READ cardEdge)
    Q_PROPERTY(QColor cardEdgeRaised READ cardEdgeRaised)
    Q_PROPERTY(QColor fieldEdge READ fieldEdge)
    Q_PROPERTY(QColor thread READ thread)
    Q_PROPERTY(QColor halo READ halo)
    Q_PROPERTY(QColor haloRaised READ haloRaised)
    Q_PROPERTY(QColor titleHalo READ titleHalo)
    Q_PROPERTY(QColor buttonEdge READ buttonEdge)
    Q_PROPERTY(QColor pilot READ pilot)
    Q_PROPERTY(QColor keyTop READ keyTop)
    Q_PROPERTY(QColor selection READ selection)
    Q_PROPERTY(QColor fieldFill READ fieldFill)
    Q_PROPERTY(QColor contents READ contents)
    Q_PROPERTY(QColor callout READ callout)
    Q_PROPERTY(QColor glassEdge READ glassEdge)
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

    // Tints: a color of the palette, laid thinly over what is there.
    /// Under a row that the pointer is over.
    [[nodiscard]] QColor hover() const { return tint(glow(), 0.07f); }
    /// In a button that isn't prominent.
    [[nodiscard]] QColor quiet() const { return tint(glow(), 0.1f); }
    [[nodiscard]] QColor quietUnderPointer() const { return tint(glow(), 0.2f); }
    /// What progress fills.
    [[nodiscard]] QColor track() const { return tint(glow(), 0.12f); }
    [[nodiscard]] QColor divider() const { return tint(glow(), 0.15f); }
    [[nodiscard]] QColor cardEdge() const { return tint(glow(), 0.16f); }
    [[nodiscard]] QColor cardEdgeRaised() const { return tint(glow(), 0.4f); }
    [[nodiscard]] QColor fieldEdge() const { return tint(glow(), 0.3f); }
    /// What strings events along a timeline.
    [[nodiscard]] QColor thread() const { return tint(glow(), 0.25f); }
    /// Around what is lit from within.
    [[nodiscard]] QColor halo() const { return tint(glow(), 0.25f); }
    [[nodiscard]] QColor haloRaised() const { return tint(glow(), 0.45f); }
    [[nodiscard]] QColor titleHalo() const { return tint(glow(), 0.5f); }
    [[nodiscard]] QColor buttonEdge() const { return tint(glow(), 0.55f); }
    /// The light in a pressed key or the shutter.
    [[nodiscard]] QColor pilot() const { return tint(accent(), 0.55f); }
    [[nodiscard]] QColor keyTop() const { return tint(accent(), 0.95f); }
    /// Behind selected text.
    [[nodiscard]] QColor selection() const { return tint(accent(), 0.75f); }
    [[nodiscard]] QColor fieldFill() const { return tint(oled(), 0.45f); }
    /// Under the contents of the course.
    [[nodiscard]] QColor contents() const { return tint(oledCard(), 0.6f); }
    /// Warm in every theme: a callout is a warning, whatever the camera wears.
    [[nodiscard]] QColor callout() const { return tint(warn(), 0.08f); }
    /// Where the display's glass meets its bezel.
    [[nodiscard]] QColor glassEdge() const { return tint(glow(), 0.18f); }

    friend bool operator==(const HVColors &, const HVColors &) = default;

private:
    [[nodiscard]] static QColor tint(QColor color, float opacity)
    {
        color.setAlphaF(opacity);
        return color;
    }
};

/// The color of a difficulty word, in any case: green for "beginner", the glow for
/// "intermediate", amber for "advanced" and "professional", dim for anything else.
[[nodiscard]] QColor levelColor(const QString &level, const HVColors &c);
