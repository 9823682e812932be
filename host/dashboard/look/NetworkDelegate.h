#ifndef NETWORKDELEGATE_H
#define NETWORKDELEGATE_H

#include <QCache>
#include <QFont>
#include <QPixmap>
#include <QStyledItemDelegate>

struct Tones;

/** Draws one network: its place, its name with what is to be said of it, and its state. */
class NetworkDelegate : public QStyledItemDelegate
{
    Q_OBJECT

public:
    enum Fold { NoFold, Open, Folded };

    enum Places { WithPlaces, WithoutPlaces };

    /** What an item holds besides its text, which is the network's name, or what those below have in common.
     */
    enum Role {
        IsSectionRole = Qt::UserRole, /**< bool; nothing else is looked at then. */
        DetailTextRole,               /**< QString, shown below the name. */
        StateTextRole,                /**< QString, shown at the end of the row. */
        MarkRole,                     /**< int, a Glyphs::Mark: what kind of state that is. */
        KindRole,                     /**< int, a Glyphs::Kind */
        ReachRole,                    /**< int, a Glyphs::Reach */
        SignalRole,                   /**< int, as Overview::Entry::signal. */
        HasNoPlaceRole,               /**< bool: it has none, though those above have. */
        FoldRole                      /**< int, a Fold, of what those below have in common. */
    };

    explicit NetworkDelegate(QObject *parent, Places places = WithPlaces);

    void paint(QPainter *painter, const QStyleOptionViewItem &option,
               const QModelIndex &index) const override;
    QSize sizeHint(const QStyleOptionViewItem &option, const QModelIndex &index) const override;

private:
    /** What belongs to the font of a list. Each of its rows asks for it. */
    struct Fonts {
        QFont of;
        QFont name;
        QFont nameBold;
        QFont small;
        QFont smallBold;
        int sectionHeight = 0;
        int rowHeight = 0;
        int placeWidth = 0;
    };

    const Fonts &FontsOf(const QStyleOptionViewItem &option) const;
    QRect GlyphArea(const QStyleOptionViewItem &option) const;
    /** All of a row but its place and the focus. */
    void PaintRow(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                  const Tones &tones) const;
    /** Paints it from a picture that is kept for as long as it looks the same: a row that moves does. */
    void PaintKept(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                   const Tones &tones) const;
    void PaintPlace(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                    const Tones &tones) const;
    // What is laid out from left to right is mirrored in row for the other direction.
    static void PaintGround(QPainter *painter, const QStyleOptionViewItem &option, bool isInUse,
                            const Tones &tones);
    QRect PaintState(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                     const Tones &tones) const;
    void PaintTexts(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                    const QRect &area, const Tones &tones) const;
    static void PaintFocus(QPainter *painter, const QStyleOptionViewItem &option, const Tones &tones);
    void PaintSection(QPainter *painter, const QStyleOptionViewItem &option, const QModelIndex &index,
                      const Tones &tones) const;

    const Places m_places;
    mutable Fonts m_fonts;
    mutable QCache<QString, QPixmap> m_pictures;
    /** Of the palette that they were painted with. */
    mutable qint64 m_paletteOfPictures = 0;
};

#endif
