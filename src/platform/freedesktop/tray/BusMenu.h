#pragma once

#include <QDBusContext>
#include <QDBusServiceWatcher>
#include <QObject>
#include <functional>
#include <memory>
#include <vector>

#include "platform/Menu.h"
#include "platform/freedesktop/tray/BusMenuTypes.h"

namespace vantle {

/// A menu that a tray draws, offered as com.canonical.dbusmenu. A line that looks the same in the
/// next menu keeps its number; any other line gets a number that was never used, because trays keep
/// properties of earlier lines with the same number. An open menu does not change; changes are
/// announced when it closes, or when the tray that has opened it is gone.
class BusMenu final : public QObject, protected QDBusContext {
    Q_OBJECT
    Q_CLASSINFO("D-Bus Interface", "com.canonical.dbusmenu")

    Q_PROPERTY(uint Version READ version CONSTANT)
    Q_PROPERTY(QString Status READ status CONSTANT)
    Q_PROPERTY(QString TextDirection READ textDirection CONSTANT)
    Q_PROPERTY(QStringList IconThemePath READ iconThemePath CONSTANT)

public:
    /// `makeMenu` returns the current menu.
    explicit BusMenu(std::function<Menu()> makeMenu);

    /// Announces a change to the trays, which otherwise draw the menu that they have received last.
    void menuChanged();

    static uint version() { return 3; }
    static QString status() { return QStringLiteral("normal"); }
    static QString textDirection();
    static QStringList iconThemePath() { return {}; }

public slots:
    uint GetLayout(int parent, int depth, const QStringList& names, vantle::BusMenuLayout& layout);
    vantle::BusMenuPropertiesList GetGroupProperties(const QList<int>& ids,
                                                     const QStringList& names);
    QDBusVariant GetProperty(int id, const QString& name);
    void Event(int id, const QString& name, const QDBusVariant& data, uint timestamp);
    QList<int> EventGroup(const vantle::BusMenuEvents& events);
    bool AboutToShow(int id);
    QList<int> AboutToShowGroup(const QList<int>& ids, QList<int>& errors);

signals:
    void LayoutUpdated(uint revision, int parent);
    void ItemsPropertiesUpdated(const vantle::BusMenuPropertiesList& updated,
                                const vantle::BusMenuRemovedPropertiesList& removed);

private:
    struct Line {
        int id = 0;
        MenuItem item;
        std::vector<Line> lines;  ///< Those of the submenu.
    };

    void opened();
    void closed();
    /// Returns true if the menu has changed.
    bool rebuild();
    void ensureBuilt();
    /// Returns the numbers of all lines, in a list that two different menus do not share.
    static std::vector<int> idsOf(const std::vector<Line>& lines);
    /// Returns the lines for these items, with the numbers of the former lines that look the same.
    std::vector<Line> matched(std::vector<MenuItem> made, std::vector<Line> former);
    static const Line* lineOf(int id, const std::vector<Line>& lines);
    void addLayouts(const std::vector<Line>& lines, int depth, const QStringList& names,
                    BusMenuLayout& layout) const;
    /// Returns null if no line has that number.
    const MenuItem* item(int id) const;
    /// Returns true if the number is that of a line or of the menu itself.
    bool isKnown(int id) const;
    QVariantMap properties(int id) const;

    const std::function<Menu()> makeMenu_;
    std::vector<Line> lines_;
    int lastId_ = 0;
    uint revision_ = 0;  ///< 0 before the first menu.
    bool isOpen_ = false;
    bool hasPendingChange_ = false;                     ///< True if it changed while it was open.
    std::unique_ptr<QDBusServiceWatcher> trayWatcher_;  ///< Set while a tray has it open.
};

}  // namespace vantle
