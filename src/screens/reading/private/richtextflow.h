#pragma once

#include <QAccessible>
#include <QClipboard>
#include <QColor>
#include <QObject>
#include <QQmlParserStatus>
#include <QQuickTextDocument>
#include <QRectF>
#include <QVariantList>
#include <QtQml/qqml.h>

#include <QPointer>

class QTextDocument;

/// A heading, a point of a list or a paragraph, as assistive technology is told of it.
struct ReadableBlock {
    Q_GADGET
    Q_PROPERTY(int role MEMBER role)
    Q_PROPERTY(QString text MEMBER text)
    Q_PROPERTY(QRectF area MEMBER area)
public:
    int role = QAccessible::Paragraph; ///< A QAccessible::Role.
    QString text;                      ///< As it is written, without the mark of its form.
    QRectF area;                       ///< Of its lines, in the TextEdit's coordinates.

    friend bool operator==(const ReadableBlock &, const ReadableBlock &) = default;
};

/// Lays course mark-up out in the document of a TextEdit, as plain characters with formats, so
/// that the whole text is one selection. Reports where the ornaments stand that a document can't
/// draw: the dots of bullets, the plates of callouts and the bars on those.
///
/// A figure such as "f/2.8" stays on one line. What holds it together is a character without width
/// that is in the document and nowhere else: what is copied are the words of the text, as plain
/// text. Nothing is laid out before all properties have their first values.
class RichTextFlow : public QObject, public QQmlParserStatus
{
    Q_OBJECT
    QML_ELEMENT
    Q_INTERFACES(QQmlParserStatus)
    Q_PROPERTY(QQuickTextDocument *document READ document WRITE setDocument NOTIFY documentChanged)
    Q_PROPERTY(QString text READ text WRITE setText NOTIFY textChanged)
    Q_PROPERTY(QColor glow READ glow WRITE setGlow NOTIFY glowChanged)
    Q_PROPERTY(qreal size READ size WRITE setSize NOTIFY sizeChanged)
    /// Rectangles of the bullets' dots, of the callouts' plates and of the bar on each plate, in
    /// the TextEdit's coordinates.
    Q_PROPERTY(QVariantList dots READ dots NOTIFY ornamentsChanged)
    Q_PROPERTY(QVariantList plates READ plates NOTIFY ornamentsChanged)
    Q_PROPERTY(QVariantList bars READ bars NOTIFY ornamentsChanged)
    /// A ReadableBlock for each block.
    Q_PROPERTY(QVariantList blocks READ blocks NOTIFY blocksChanged)
public:
    explicit RichTextFlow(QObject *parent = nullptr);

    [[nodiscard]] QQuickTextDocument *document() const { return m_document; }
    void setDocument(QQuickTextDocument *document);
    [[nodiscard]] QString text() const { return m_text; }
    void setText(const QString &text);
    [[nodiscard]] QColor glow() const { return m_glow; }
    void setGlow(const QColor &glow);
    /// Base font size in points.
    [[nodiscard]] qreal size() const { return m_size; }
    void setSize(qreal size);

    [[nodiscard]] QVariantList dots() const { return m_dots; }
    [[nodiscard]] QVariantList plates() const { return m_plates; }
    [[nodiscard]] QVariantList bars() const { return m_bars; }
    [[nodiscard]] QVariantList blocks() const { return m_blocks; }

    void classBegin() override { }
    void componentComplete() override;

Q_SIGNALS:
    void documentChanged();
    void textChanged();
    void glowChanged();
    void sizeChanged();
    void ornamentsChanged();
    void blocksChanged();

private:
    void fill();
    void place();
    void copyPlainly(QClipboard::Mode mode);

    QPointer<QQuickTextDocument> m_document;
    QString m_text;
    QColor m_glow = Qt::white;
    qreal m_size = 14;
    QVariantList m_dots;
    QVariantList m_plates;
    QVariantList m_bars;
    QVariantList m_blocks;
    bool m_isComplete = false;
    bool m_filling = false;
};
