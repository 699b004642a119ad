#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QVariantList>
#include <functional>

#include "platform/Menu.h"

namespace vantle {

/// A menu for its view: its lines, and the current line.
class MenuModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the menu window")

    /// Each line has "title", "symbol", "isSeparator", "isEnabled", "shortcut" (for display),
    /// "picture" (an address, or empty if there is none) and "pictureSize".
    Q_PROPERTY(QVariantList lines READ lines NOTIFY linesChanged)
    Q_PROPERTY(QString title READ title NOTIFY linesChanged)
    /// The index of the current line; -1 if there is none.
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)

public:
    static constexpr int none = -1;

    void setMenu(const Menu& menu);
    QVariantList lines() const;
    QString title() const { return QString::fromStdString(menu_.title); }

    int current() const { return current_; }
    /// Makes `line` the current line if it can be chosen; otherwise no line is current.
    void setCurrent(int line);
    /// Moves to the next line that can be chosen and wraps around; `direction` is 1 or -1.
    void step(int direction);
    /// Moves to the next line that can be chosen and begins with that letter.
    void stepTo(QChar letter);

    Q_INVOKABLE void choose(int line);
    /// Chooses the line with that key. Returns false if there is none.
    bool chooseByKey(QChar key);

    const MenuItem& item(int line) const { return menu_.items[static_cast<std::size_t>(line)]; }
    /// Returns the picture of a line; null if it has none.
    const MenuImage* image(int line) const;

signals:
    void linesChanged();
    void currentChanged();
    void chosen(int line);

private:
    int count() const { return static_cast<int>(menu_.items.size()); }
    QVariantMap description(int line) const;
    bool isAction(int line) const;
    /// Moves from the current line to the next one that can be chosen and matches; wraps around.
    void moveToNext(int direction, const std::function<bool(const MenuItem&)>& matches);

    Menu menu_;
    int revision_ = 0;  ///< Part of the pictures' addresses: each menu has its own pictures.
    int current_ = none;
};

}  // namespace vantle
