#include "menus/MenuModel.h"

#include <QKeySequence>
#include <QSizeF>
#include <QVariantMap>

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
    menu_ = menu;
    ++revision_;
    setCurrent(none);
    emit linesChanged();
}

QVariantList MenuModel::lines() const {
    QVariantList lines;
    for (int line = 0; line < count(); ++line) lines << description(line);
    return lines;
}

QVariantMap MenuModel::description(int line) const {
    const MenuItem& menuItem = item(line);
    QVariantMap description{
        {QStringLiteral("title"), QString::fromStdString(menuItem.title)},
        {QStringLiteral("symbol"), QString::fromStdString(menuItem.symbol)},
        {QStringLiteral("isSeparator"), menuItem.kind == MenuItem::Kind::separator},
        {QStringLiteral("isEnabled"), menuItem.isEnabled},
        {QStringLiteral("shortcut"), shortcut(menuItem)},
        {QStringLiteral("picture"), QString()},
        {QStringLiteral("pictureSize"), QSizeF()}};
    if (menuItem.image) {
        description[QStringLiteral("picture")] =
            QStringLiteral("image://menu/%1/%2").arg(revision_).arg(line);
        description[QStringLiteral("pictureSize")] =
            QSizeF(menuItem.image->size.width, menuItem.image->size.height);
    }
    return description;
}

const MenuImage* MenuModel::image(int line) const {
    if (line < 0 || line >= count() || !item(line).image) return nullptr;
    return &*item(line).image;
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
    if (isAction(line)) emit chosen(line);
}

}  // namespace vantle
