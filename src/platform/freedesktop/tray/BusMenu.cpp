#include "platform/freedesktop/tray/BusMenu.h"

#include <QBuffer>
#include <QDBusConnection>
#include <QDBusMessage>
#include <QGuiApplication>
#include <algorithm>
#include <iterator>
#include <utility>

#include "platform/qt/MenuPicture.h"

namespace vantle {
namespace {

constexpr int root = 0;
constexpr double imageDensity = 2;  // pixels for each point; trays scale images down themselves

bool isEqual(const std::optional<MenuImage>& a, const std::optional<MenuImage>& b) {
    return a.has_value() == b.has_value() && (!a || a->picture == b->picture);
}

/// Returns true if the two lines look the same to the user; their actions may differ.
bool looksEqual(const MenuItem& a, const MenuItem& b) {
    return a.kind == b.kind && a.title == b.title && a.keyEquivalent == b.keyEquivalent &&
           a.isEnabled == b.isEnabled && a.items.empty() == b.items.empty() &&
           isEqual(a.image, b.image);
}

/// Doubles underscores: a single one would mark the next letter as the line's access key.
QString label(const std::string& title) {
    return QString::fromStdString(title).replace(QLatin1Char('_'), QStringLiteral("__"));
}

BusShortcut shortcut(const std::string& key) {
    const QString name = key == "," ? QStringLiteral("comma") : QString::fromStdString(key);
    return {{QStringLiteral("Control"), name}};
}

QByteArray png(const MenuImage& image) {
    QBuffer buffer;
    menuPicture(image, imageDensity).save(&buffer, "png");
    return buffer.data();
}

/// Returns only the named properties, or all if no name is given.
QVariantMap selected(QVariantMap properties, const QStringList& names) {
    if (names.isEmpty()) return properties;
    for (const QString& name : properties.keys())
        if (!names.contains(name)) properties.remove(name);
    return properties;
}

}  // namespace

BusMenu::BusMenu(std::function<Menu()> makeMenu) : makeMenu_(std::move(makeMenu)) {
    registerBusMenuTypes();
}

QString BusMenu::textDirection() {
    return QGuiApplication::isRightToLeft() ? QStringLiteral("rtl") : QStringLiteral("ltr");
}

void BusMenu::menuChanged() {
    hasPendingChange_ = isOpen_;
    if (!isOpen_ && rebuild()) emit LayoutUpdated(revision_, root);
}

void BusMenu::opened() {
    isOpen_ = true;
    if (!calledFromDBus()) return;
    trayWatcher_ = std::make_unique<QDBusServiceWatcher>(
        message().service(), connection(), QDBusServiceWatcher::WatchForUnregistration);
    connect(trayWatcher_.get(), &QDBusServiceWatcher::serviceUnregistered, this, &BusMenu::closed);
}

void BusMenu::closed() {
    isOpen_ = false;
    // This may be called from a signal of the watcher, so it must not be deleted yet.
    if (trayWatcher_) trayWatcher_.release()->deleteLater();
    if (hasPendingChange_) menuChanged();
}

bool BusMenu::rebuild() {
    const auto former = idsOf(lines_);
    lines_ = matched(makeMenu_().items, std::exchange(lines_, {}));
    const bool isChanged = revision_ == 0 || idsOf(lines_) != former;
    if (isChanged) ++revision_;
    return isChanged;
}

std::vector<int> BusMenu::idsOf(const std::vector<Line>& lines) {
    std::vector<int> ids;
    for (const auto& line : lines) {
        ids.push_back(line.id);
        std::ranges::copy(idsOf(line.lines), std::back_inserter(ids));
        // Ends the submenu, so that a line that leaves it changes the list.
        ids.push_back(root);
    }
    return ids;
}

std::vector<BusMenu::Line> BusMenu::matched(std::vector<MenuItem> made, std::vector<Line> former) {
    std::vector<Line> lines;
    // Matches from the end, where the menu changes least: separators all look the same, and trays
    // do not handle moved lines well.
    std::ranges::reverse(made);
    for (auto& item : made) {
        const auto same = std::find_if(former.rbegin(), former.rend(), [&item](const Line& line) {
            return looksEqual(line.item, item);
        });
        Line line;
        if (same == former.rend()) {
            line.id = ++lastId_;
        } else {
            line = std::move(*same);
            former.erase(std::next(same).base());
        }
        line.lines = matched(item.items, std::move(line.lines));
        line.item = std::move(item);
        lines.push_back(std::move(line));
    }
    std::ranges::reverse(lines);
    return lines;
}

void BusMenu::ensureBuilt() {
    if (revision_ == 0) rebuild();
}

const BusMenu::Line* BusMenu::lineOf(int id, const std::vector<Line>& lines) {
    for (const auto& line : lines) {
        if (line.id == id) return &line;
        if (const Line* found = lineOf(id, line.lines)) return found;
    }
    return nullptr;
}

const MenuItem* BusMenu::item(int id) const {
    const Line* line = lineOf(id, lines_);
    return line ? &line->item : nullptr;
}

bool BusMenu::isKnown(int id) const {
    return id == root || item(id);
}

QVariantMap BusMenu::properties(int id) const {
    if (id == root) return {{QStringLiteral("children-display"), QStringLiteral("submenu")}};
    const MenuItem* found = item(id);
    if (!found) return {};
    const MenuItem& line = *found;
    if (line.kind == MenuItem::Kind::separator)
        return {{QStringLiteral("type"), QStringLiteral("separator")}};
    QVariantMap properties{{QStringLiteral("label"), label(line.title)},
                           {QStringLiteral("enabled"), line.isEnabled}};
    if (!line.keyEquivalent.empty())
        properties.insert(QStringLiteral("shortcut"),
                          QVariant::fromValue(shortcut(line.keyEquivalent)));
    if (line.image) properties.insert(QStringLiteral("icon-data"), png(*line.image));
    if (!line.items.empty())
        properties.insert(QStringLiteral("children-display"), QStringLiteral("submenu"));
    return properties;
}

uint BusMenu::GetLayout(int parent, int depth, const QStringList& names, BusMenuLayout& layout) {
    ensureBuilt();
    const Line* line = lineOf(parent, lines_);
    layout = {parent, selected(properties(parent), names), {}};
    if (parent == root)
        addLayouts(lines_, depth, names, layout);
    else if (line)
        addLayouts(line->lines, depth, names, layout);
    return revision_;
}

void BusMenu::addLayouts(const std::vector<Line>& lines, int depth, const QStringList& names,
                         BusMenuLayout& layout) const {
    // A negative depth has no limit.
    if (depth == 0) return;
    for (const auto& line : lines) {
        layout.children << BusMenuLayout{line.id, selected(properties(line.id), names), {}};
        addLayouts(line.lines, depth - 1, names, layout.children.last());
    }
}

BusMenuPropertiesList BusMenu::GetGroupProperties(const QList<int>& ids, const QStringList& names) {
    ensureBuilt();
    BusMenuPropertiesList list;
    for (const int id : ids)
        if (isKnown(id)) list << BusMenuProperties{id, selected(properties(id), names)};
    return list;
}

QDBusVariant BusMenu::GetProperty(int id, const QString& name) {
    ensureBuilt();
    return QDBusVariant(properties(id).value(name, QString()));
}

void BusMenu::Event(int id, const QString& name, const QDBusVariant&, uint) {
    if (id == root && name == QStringLiteral("opened")) opened();
    if (id == root && name == QStringLiteral("closed")) closed();
    if (name != QStringLiteral("clicked")) return;
    // Queued, because the tray waits for the answer and the action may wait for the user.
    if (const MenuItem* chosen = item(id); chosen && chosen->isEnabled && chosen->action)
        QMetaObject::invokeMethod(this, chosen->action, Qt::QueuedConnection);
    closed();
}

QList<int> BusMenu::EventGroup(const BusMenuEvents& events) {
    QList<int> unknown;
    for (const auto& event : events) {
        if (!isKnown(event.id)) unknown << event.id;
        Event(event.id, event.name, event.data, event.timestamp);
    }
    return unknown;
}

bool BusMenu::AboutToShow(int id) {
    if (id != root || !rebuild()) return false;
    emit LayoutUpdated(revision_, root);
    return true;
}

QList<int> BusMenu::AboutToShowGroup(const QList<int>& ids, QList<int>& errors) {
    QList<int> updated;
    for (const int id : ids) {
        if (!isKnown(id)) errors << id;
        if (AboutToShow(id)) updated << id;
    }
    return updated;
}

}  // namespace vantle
