#include "menus/MenuModel.h"

#include <QVariantMap>

namespace vantle {

void MenuModel::setMenu(const Menu& menu) {
    menu_ = menu;
    lines_.clear();
    for (const auto& item : menu.items)
        lines_ << QVariantMap{
            {QStringLiteral("title"), QString::fromStdString(item.title)},
            {QStringLiteral("symbol"), QString::fromStdString(item.symbol)},
            {QStringLiteral("isSeparator"), item.kind == MenuItem::Kind::separator}};
    setCurrent(none);
    emit linesChanged();
}

bool MenuModel::isAction(int line) const {
    return line >= 0 && line < lines_.size() &&
           menu_.items[static_cast<std::size_t>(line)].kind == MenuItem::Kind::action;
}

void MenuModel::setCurrent(int line) {
    if (!isAction(line)) line = none;
    if (line == current_) return;
    current_ = line;
    emit currentChanged();
}

void MenuModel::step(int direction) {
    const int count = static_cast<int>(lines_.size());
    // Upwards from nowhere begins at the end.
    int line = current_ == none && direction < 0 ? count : current_;
    for (int tried = 0; tried < count; ++tried) {
        line = (line + direction + count) % count;
        if (!isAction(line)) continue;
        setCurrent(line);
        return;
    }
}

void MenuModel::stepTo(QChar letter) {
    const int count = static_cast<int>(lines_.size());
    for (int tried = 1; tried <= count; ++tried) {
        const int line = (current_ + tried) % count;
        const QString title = lines_[line].toMap()[QStringLiteral("title")].toString();
        if (!isAction(line) || !title.startsWith(letter, Qt::CaseInsensitive)) continue;
        setCurrent(line);
        return;
    }
}

void MenuModel::choose(int line) {
    if (isAction(line)) emit chosen(line);
}

}  // namespace vantle
