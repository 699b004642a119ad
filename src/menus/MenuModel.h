#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QVariantList>
#include <functional>

#include "platform/Menu.h"

namespace vantle {

/// A menu for its view: its lines, and which of them is the current one.
class MenuModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("made by the menu's window")

    /// Of each line: "title", "symbol", "isSeparator", "isEnabled", "shortcut" (for a person), and
    /// "picture": the address of its picture and "pictureSize", where it has one.
    Q_PROPERTY(QVariantList lines READ lines NOTIFY linesChanged)
    Q_PROPERTY(QString title READ title NOTIFY linesChanged)
    /// -1 while there is none.
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)

public:
    static constexpr int none = -1;

    void setMenu(const Menu& menu);
    QVariantList lines() const;
    QString title() const { return QString::fromStdString(menu_.title); }

    int current() const { return current_; }
    /// Only one that can be chosen.
    void setCurrent(int line);
    /// To the next line that can be chosen, in steps of 1 or -1, around the end.
    void step(int direction);
    /// To the next line that begins with that letter.
    void stepTo(QChar letter);

    Q_INVOKABLE void choose(int line);
    /// Chooses the line whose key that is; false when there is none.
    bool chooseByKey(QChar key);

    const MenuItem& item(int line) const { return menu_.items[static_cast<std::size_t>(line)]; }
    /// The picture of a line; null when it has none.
    const MenuImage* image(int line) const;

signals:
    void linesChanged();
    void currentChanged();
    void chosen(int line);

private:
    int count() const { return static_cast<int>(menu_.items.size()); }
    QVariantMap description(int line) const;
    bool isAction(int line) const;
    /// Goes on from the current line, around the end, to the first that can be chosen and fits.
    void seek(int direction, const std::function<bool(const MenuItem&)>& fits);

    Menu menu_;
    int revision_ = 0;  ///< Of the pictures: another menu has others.
    int current_ = none;
};

}  // namespace vantle
