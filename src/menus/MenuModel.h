#pragma once

#include <QtQml/qqmlregistration.h>

#include <QObject>
#include <QVariantList>
#include <functional>
#include <vector>

#include "platform/Menu.h"

namespace vantle {

/// A menu for its view: its pages, and the current line of the current page. The first page has the
/// menu's own lines. Each submenu is another page, which begins with a line that leads back.
class MenuModel : public QObject {
    Q_OBJECT
    QML_ELEMENT
    QML_UNCREATABLE("created by the menu window")

    /// The lines of each page. A line has "title", "symbol", "isSeparator", "isEnabled", "shortcut"
    /// (for display), "isBack", "hasPage", "picture" (an address, or empty if there is none) and
    /// "pictureSize".
    Q_PROPERTY(QVariantList pages READ pages NOTIFY pagesChanged)
    /// The title of the current page.
    Q_PROPERTY(QString title READ title NOTIFY pageChanged)
    Q_PROPERTY(int page READ page NOTIFY pageChanged)
    /// The index of the current line; -1 if there is none.
    Q_PROPERTY(int current READ current WRITE setCurrent NOTIFY currentChanged)

public:
    static constexpr int none = -1;

    /// Shows the first page, without a current line.
    void setMenu(const Menu& menu);
    QVariantList pages() const;
    QString title() const;
    int page() const { return page_; }
    /// Returns the lines of the current page.
    QVariantList lines() const { return linesOf(page_); }

    int current() const { return current_; }
    /// Makes `line` the current line if it can be chosen; otherwise no line is current.
    void setCurrent(int line);
    /// Moves to the next line that can be chosen and wraps around; `direction` is 1 or -1.
    void step(int direction);
    /// Moves to the next line that can be chosen and begins with that letter.
    void stepTo(QChar letter);

    /// Shows the page that the current line leads to, with its first line as the current one. Does
    /// nothing if it leads to none.
    void enter();
    /// Shows the page from which the current one was entered. Returns false on the first page.
    bool leave();

    /// Chooses the line, or shows the page that it leads to.
    Q_INVOKABLE void choose(int line);
    /// Like choose(), and makes a line of the new page the current one.
    void chooseCurrent();
    /// Chooses the line with that key. Returns false if there is none.
    bool chooseByKey(QChar key);

    /// Returns a line of the current page.
    const MenuItem& item(int line) const { return itemOf(page_, line); }
    /// Returns the line of the first page that leads to `line` of the current one.
    int lineOfFirstPage(int line) const;
    /// Returns the picture of a line; null if it has none.
    const MenuImage* image(int page, int line) const;

signals:
    void pagesChanged();
    void pageChanged();
    void currentChanged();
    void chosen(int line);

private:
    struct Page {
        QString title;
        std::vector<MenuItem> items;
        std::vector<int> pages;  ///< The page that each line leads to, or `none`.
        int parent = none;
        int parentLine = none;
    };

    int addPage(const Menu& menu, int parent, int parentLine);
    void showPage(int page, int line);
    const Page& currentPage() const { return pages_[static_cast<std::size_t>(page_)]; }
    const MenuItem& itemOf(int page, int line) const;
    int count() const { return static_cast<int>(currentPage().items.size()); }
    bool isBack(int page, int line) const { return page > 0 && line == 0; }
    int pageOf(int page, int line) const;
    QVariantList linesOf(int page) const;
    QVariantMap description(int page, int line) const;
    bool isAction(int line) const;
    /// Moves from the current line to the next one that can be chosen and matches; wraps around.
    void moveToNext(int direction, const std::function<bool(const MenuItem&)>& matches);

    std::vector<Page> pages_{Page{}};
    int page_ = 0;
    int revision_ = 0;  ///< Part of the pictures' addresses: each menu has its own pictures.
    int current_ = none;
};

}  // namespace vantle
