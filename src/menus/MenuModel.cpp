#include "menus/MenuModel.h"

#include <QKeySequence>
#include <QSizeF>
#include <QVariantMap>
#include <utility>

namespace vantle {
namespace {

/// Returns the shortcut as the desktop writes it, for example "Ctrl+Q".
QString shortcut(const MenuItem& item) {
    if (item.keyEquivalent.empty()) return {};
    return QKeySequence(QStringLiteral("Ctrl+") + QString::fromStdString(item.keyEquivalent))
        .toString(QKeySequence::NativeText);
}

}  // namespace

void MenuModel::setMenu(const Menu& menu) {
    pages_.clear();
    addPage(menu, none, none);
    ++revision_;
    emit pagesChanged();
    showPage(0, none);
}

int MenuModel::addPage(const Menu& menu, int parent, int parentLine) {
    const int page = static_cast<int>(pages_.size());
    pages_.push_back({QString::fromStdString(menu.title), menu.items, {}, parent, parentLine});
    if (page > 0) {
        const MenuItem back{.title = menu.title, .symbol = "chevron.left"};
        pages_.back().items.insert(pages_.back().items.begin(), back);
    }
    std::vector<int> pages;
    const std::vector<MenuItem> items = pages_.back().items;
    for (std::size_t i = 0; i < items.size(); ++i)
        pages.push_back(items[i].items.empty()
                            ? none
                            : addPage({items[i].title, items[i].items}, page, static_cast<int>(i)));
    pages_[static_cast<std::size_t>(page)].pages = std::move(pages);
    return page;
}

void MenuModel::showPage(int page, int line) {
    current_ = none;
    page_ = page;
    emit pageChanged();
    emit currentChanged();
    setCurrent(line);
}

QString MenuModel::title() const {
    return currentPage().title;
}

const MenuItem& MenuModel::itemOf(int page, int line) const {
    return pages_[static_cast<std::size_t>(page)].items[static_cast<std::size_t>(line)];
}

int MenuModel::pageOf(int page, int line) const {
    return pages_[static_cast<std::size_t>(page)].pages[static_cast<std::size_t>(line)];
}

QVariantList MenuModel::pages() const {
    QVariantList pages;
    for (std::size_t page = 0; page < pages_.size(); ++page)
        pages << QVariant(linesOf(static_cast<int>(page)));
    return pages;
}

QVariantList MenuModel::linesOf(int page) const {
    QVariantList lines;
    const auto size = static_cast<int>(pages_[static_cast<std::size_t>(page)].items.size());
    for (int line = 0; line < size; ++line) lines << description(page, line);
    return lines;
}

QVariantMap MenuModel::description(int page, int line) const {
    const MenuItem& menuItem = itemOf(page, line);
    QVariantMap description{
        {QStringLiteral("title"), QString::fromStdString(menuItem.title)},
        {QStringLiteral("symbol"), QString::fromStdString(menuItem.symbol)},
        {QStringLiteral("isSeparator"), menuItem.kind == MenuItem::Kind::separator},
        {QStringLiteral("isEnabled"), menuItem.isEnabled},
        {QStringLiteral("shortcut"), shortcut(menuItem)},
        {QStringLiteral("isBack"), isBack(page, line)},
        {QStringLiteral("hasPage"), pageOf(page, line) != none},
        {QStringLiteral("picture"), QString()},
        {QStringLiteral("pictureSize"), QSizeF()}};
    if (menuItem.image) {
        description[QStringLiteral("picture")] =
            QStringLiteral("image://menu/%1/%2/%3").arg(revision_).arg(page).arg(line);
        description[QStringLiteral("pictureSize")] =
            QSizeF(menuItem.image->size.width, menuItem.image->size.height);
    }
    return description;
}

const MenuImage* MenuModel::image(int page, int line) const {
    if (page < 0 || page >= static_cast<int>(pages_.size())) return nullptr;
    const auto& items = pages_[static_cast<std::size_t>(page)].items;
    if (line < 0 || line >= static_cast<int>(items.size())) return nullptr;
    const auto& image = items[static_cast<std::size_t>(line)].image;
    return image ? &*image : nullptr;
}

int MenuModel::lineOfFirstPage(int line) const {
    for (int page = page_; page > 0;) {
        const Page& left = pages_[static_cast<std::size_t>(page)];
        line = left.parentLine;
        page = left.parent;
    }
    return line;
}

bool MenuModel::isAction(int line) const {
    return line >= 0 && line < count() && item(line).kind == MenuItem::Kind::action &&
           item(line).isEnabled;
}

bool MenuModel::chooseByKey(QChar key) {
    for (int line = 0; line < count(); ++line) {
        if (!isAction(line) || item(line).keyEquivalent != QString(key).toStdString()) continue;
        choose(line);
        return true;
    }
    return false;
}

void MenuModel::enter() {
    if (current_ == none || pageOf(page_, current_) == none) return;
    showPage(pageOf(page_, current_), 0);
    // The line that leads back is not what the user has entered the page for.
    step(1);
}

bool MenuModel::leave() {
    if (page_ == 0) return false;
    const Page left = currentPage();
    showPage(left.parent, left.parentLine);
    return true;
}

void MenuModel::setCurrent(int line) {
    if (!isAction(line)) line = none;
    if (line == current_) return;
    current_ = line;
    emit currentChanged();
}

void MenuModel::moveToNext(int direction, const std::function<bool(const MenuItem&)>& matches) {
    // Going up without a current line begins at the end.
    int line = current_ == none && direction < 0 ? count() : current_;
    for (int tried = 0; tried < count(); ++tried) {
        line = (line + direction + count()) % count();
        if (!isAction(line) || !matches(item(line))) continue;
        setCurrent(line);
        return;
    }
}

void MenuModel::step(int direction) {
    moveToNext(direction, [](const MenuItem&) { return true; });
}

void MenuModel::stepTo(QChar letter) {
    moveToNext(1, [letter](const MenuItem& item) {
        return QString::fromStdString(item.title).startsWith(letter, Qt::CaseInsensitive);
    });
}

void MenuModel::choose(int line) {
    if (!isAction(line)) return;
    if (isBack(page_, line))
        leave();
    else if (pageOf(page_, line) != none)
        showPage(pageOf(page_, line), none);
    else
        emit chosen(line);
}

void MenuModel::chooseCurrent() {
    const bool entersPage = current_ != none && pageOf(page_, current_) != none;
    if (entersPage)
        enter();
    else
        choose(current_);
}

}  // namespace vantle
