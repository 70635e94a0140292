// Color themes: six colors under a name, the one that is selected, and the arithmetic of
// contrast.
//
// The kit knows its own six themes; an application registers more and may make one of them the
// default. The selection is one preference, "crvn.theme", read afresh at each call. Colors are
// sRGB, components from 0 to 1. Main thread only.
#pragma once

#include <QColor>
#include <QList>
#include <QObject>
#include <QString>

/// A named set of six colors. Two themes are the same theme when their ids are equal.
struct CRVNTheme {
    /// An opaque sRGB color in double precision, components from 0 to 1.
    struct RGB {
        double r;
        double g;
        double b;

        // Never black by omission: a theme that lacks a color doesn't compile.
        constexpr RGB(double red, double green, double blue)
            : r(red)
            , g(green)
            , b(blue)
        { }
        /// `hex` is 0xRRGGBB.
        constexpr explicit RGB(quint32 hex)
            : r(((hex >> 16) & 0xFF) / 255.0)
            , g(((hex >> 8) & 0xFF) / 255.0)
            , b((hex & 0xFF) / 255.0)
        { }

        /// Relative luminance, 0 (black) to 1 (white).
        /// Source: Web Content Accessibility Guidelines 2.0, with its threshold 0.03928.
        [[nodiscard]] double luminance() const;

        /// Contrast ratio of two colors, 1 to 21, in either order. Source: WCAG 2.0.
        /// The program asks for 7 under body text and 4.5 under everything else.
        [[nodiscard]] static double contrast(const RGB &a, const RGB &b);

        /// a + (b − a)·fraction on each component.
        [[nodiscard]] static constexpr RGB mix(const RGB &a, const RGB &b, double fraction)
        {
            return { a.r + (b.r - a.r) * fraction, a.g + (b.g - a.g) * fraction,
                a.b + (b.b - a.b) * fraction };
        }

        [[nodiscard]] QColor color(double opacity = 1) const;

        friend constexpr bool operator==(const RGB &, const RGB &) = default;
    };

    /// `ink` mixed with as little white as it takes for a contrast of `ratio` on `ground`, in steps
    /// of a twentieth.
    [[nodiscard]] static RGB lightened(const RGB &ink, const RGB &ground, double ratio);

    enum class Family { masculine, feminine, black, gray, extra };

    QString id;   ///< What the preference stores.
    QString name; ///< What the menu shows.
    Family family = Family::extra;
    RGB bg; ///< Window background.
    RGB panelTop;
    RGB panelBottom;
    RGB text;
    RGB dim;    ///< Secondary text.
    RGB accent; ///< Prominent buttons, focus.

    friend bool operator==(const CRVNTheme &a, const CRVNTheme &b) { return a.id == b.id; }
};

/// The raw text of a family: "masculine", "feminine", "black", "gray" or "extra".
[[nodiscard]] QString familyName(CRVNTheme::Family family);

namespace CRVNThemes {

inline const QString key = QStringLiteral("crvn.theme");

[[nodiscard]] const QList<CRVNTheme> &builtIn();

/// The built-in themes, then the registered ones.
[[nodiscard]] QList<CRVNTheme> all();

/// Adds themes; one whose id is taken already is passed over, so a built-in theme cannot be
/// replaced and registering twice is harmless.
void registerThemes(const QList<CRVNTheme> &themes);

/// The theme of a user who has never chosen; "cobalt-gunmetal" until the application sets its own.
[[nodiscard]] QString defaultID();
void setDefaultID(const QString &id);

/// The theme with this id; failing that the default theme, failing that the first built-in one.
[[nodiscard]] CRVNTheme named(const QString &id);

/// The stored id as it stands, known or not, else defaultID().
[[nodiscard]] QString currentID();
void setCurrentID(const QString &id);

/// The selected theme: named(currentID()).
[[nodiscard]] CRVNTheme current();

} // namespace CRVNThemes

/// The colors as the kit's own widgets see them.
struct CNKitTheme {
    Q_GADGET
    Q_PROPERTY(QColor bg MEMBER bg)
    Q_PROPERTY(QColor text MEMBER text)
    Q_PROPERTY(QColor dim MEMBER dim)
    Q_PROPERTY(QColor rim MEMBER rim)
    Q_PROPERTY(QColor accent MEMBER accent)
    Q_PROPERTY(QColor panelTop MEMBER panelTop)
    Q_PROPERTY(QColor panelBottom MEMBER panelBottom)
public:
    QColor bg;
    QColor text;
    QColor dim;
    QColor rim; ///< White at a quarter of its opacity, in every theme.
    QColor accent;
    QColor panelTop;
    QColor panelBottom;

    friend bool operator==(const CNKitTheme &, const CNKitTheme &) = default;
};

[[nodiscard]] CNKitTheme kitTheme(const CRVNTheme &theme);
