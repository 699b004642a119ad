#include "menus/MenuModel.h"

#include <QVariantMap>

namespace vantle {

void MenuModel::setMenu(const Menu& menu) {
    menu_ = menu;
    setCurrent(none);
    emit linesChanged();
}

QVariantList MenuModel::lines() const {
    QVariantList lines;
    for (const auto& item : menu_.items)
        lines << QVariantMap{
            {QStringLiteral("title"), QString::fromStdString(item.title)},
            {QStringLiteral("symbol"), QString::fromStdString(item.symbol)},
            {QStringLiteral("isSeparator"), item.kind == MenuItem::Kind::separator}};
    return lines;
}

bool MenuModel::isAction(int line) const {
    return line >= 0 && line < count() && item(line).kind == MenuItem::Kind::action;
}

void MenuModel::setCurrent(int line) {
    if (!isAction(line)) line = none;
    if (line == current_) return;
    current_ = line;
    emit currentChanged();
}

void MenuModel::seek(int direction, const std::function<bool(const MenuItem&)>& fits) {
    // Upwards from nowhere begins at the end.
    int line = current_ == none && direction < 0 ? count() : current_;
    for (int tried = 0; tried < count(); ++tried) {
        line = (line + direction + count()) % count();
        if (!isAction(line) || !fits(item(line))) continue;
        setCurrent(line);
        return;
    }
}

void MenuModel::step(int direction) {
    seek(direction, [](const MenuItem&) { return true; });
}

void MenuModel::stepTo(QChar letter) {
    seek(1, [letter](const MenuItem& item) {
        return QString::fromStdString(item.title).startsWith(letter, Qt::CaseInsensitive);
    });
}

void MenuModel::choose(int line) {
    if (isAction(line)) emit chosen(line);
}

}  // namespace vantle
