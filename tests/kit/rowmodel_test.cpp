#include "kit/rowmodel.h"

#include <gtest/gtest.h>

using namespace Qt::StringLiterals;

namespace {

struct Lens {
    QString name;
    int focal;
};

// Lenses, of which one may be on the camera.
class Bag : public RowModel
{
public:
    Bag() { hold({}); }

    void hold(const QList<Lens> &lenses)
    {
        showRows<Lens>(lenses,
            {
                { "name", &Lens::name },
                { "focal", &Lens::focal },
                { "number", [](const Lens &, int row) { return row + 1; } },
                { "mounted", [this](const Lens &lens) { return lens.name == m_mounted; } },
            });
    }
    void mount(const QString &name)
    {
        m_mounted = name;
        refresh("mounted");
    }

private:
    QString m_mounted;
};

const QList<Lens> kLenses = { { u"wide"_s, 24 }, { u"normal"_s, 50 }, { u"long"_s, 200 } };

QVariantList column(const RowModel &list, const char *role)
{
    QVariantList result;
    for (int row = 0; row < list.rowCount(); ++row)
        result.append(list.index(row).data(list.roleNames().key(role, -1)));
    return result;
}

} // namespace

TEST(RowModel, ShowsItsRowsThroughTheRolesOfItsTable)
{
    Bag bag;
    bag.hold(kLenses);
    EXPECT_EQ(bag.rowCount(), 3);
    EXPECT_EQ(column(bag, "name"), QVariantList({ u"wide"_s, u"normal"_s, u"long"_s }));
    EXPECT_EQ(column(bag, "focal"), QVariantList({ 24, 50, 200 }));
    EXPECT_EQ(column(bag, "number"), QVariantList({ 1, 2, 3 }));
}

TEST(RowModel, NumbersItsRolesFromTheUserRoleOn)
{
    EXPECT_EQ(Bag().roleNames(),
        (QHash<int, QByteArray>{ { Qt::UserRole, "name" }, { Qt::UserRole + 1, "focal" },
            { Qt::UserRole + 2, "number" }, { Qt::UserRole + 3, "mounted" } }));
}

TEST(RowModel, ShowsRowsThatArePointersToRecords)
{
    class Borrowed : public RowModel
    {
    public:
        Borrowed()
        {
            showRows<const Lens *>({ &kLenses.at(2), &kLenses.at(0) }, { { "name", &Lens::name } });
        }
    };
    EXPECT_EQ(column(Borrowed(), "name"), QVariantList({ u"long"_s, u"wide"_s }));
}

TEST(RowModel, WorksARoleOutWhenItIsAskedFor)
{
    Bag bag;
    bag.hold(kLenses);
    EXPECT_EQ(column(bag, "mounted"), QVariantList({ false, false, false }));
    bag.mount(u"normal"_s);
    EXPECT_EQ(column(bag, "mounted"), QVariantList({ false, true, false }));
}

TEST(RowModel, TellsOfARoleThatIsRefreshedInAllRows)
{
    Bag bag;
    bag.hold(kLenses);
    int times = 0;
    QObject::connect(&bag, &RowModel::dataChanged, &bag,
        [&](const QModelIndex &from, const QModelIndex &to, const QList<int> &roles) {
            ++times;
            EXPECT_EQ(from.row(), 0);
            EXPECT_EQ(to.row(), 2);
            EXPECT_EQ(roles, QList<int>{ Qt::UserRole + 3 });
        });
    bag.mount(u"long"_s);
    EXPECT_EQ(times, 1);
}

TEST(RowModel, TellsOfNothingWhileItHasNoRows)
{
    Bag bag;
    bool told = false;
    QObject::connect(&bag, &RowModel::dataChanged, &bag, [&] { told = true; });
    bag.mount(u"long"_s);
    EXPECT_FALSE(told);
}

TEST(RowModel, PutsNewRowsInThePlaceOfTheOld)
{
    Bag bag;
    int resets = 0;
    int counts = 0;
    QObject::connect(&bag, &RowModel::modelReset, &bag, [&] { ++resets; });
    QObject::connect(&bag, &RowModel::countChanged, &bag, [&] { ++counts; });
    bag.hold(kLenses);
    EXPECT_EQ(bag.count(), 3);
    bag.hold({ kLenses.at(1) });
    EXPECT_EQ(column(bag, "name"), QVariantList({ u"normal"_s }));
    bag.hold({ kLenses.at(0) });
    EXPECT_EQ(column(bag, "name"), QVariantList({ u"wide"_s }));
    EXPECT_EQ(resets, 3);
    EXPECT_EQ(counts, 2);
}

TEST(RowModel, HasNothingWhereThereIsNoRowAndNoRole)
{
    Bag bag;
    EXPECT_FALSE(bag.index(0).data(Qt::UserRole).isValid());
    bag.hold(kLenses);
    EXPECT_FALSE(bag.data(bag.index(3), Qt::UserRole).isValid());
    EXPECT_FALSE(bag.data(bag.index(0), Qt::DisplayRole).isValid());
    EXPECT_FALSE(bag.data(bag.index(0), Qt::UserRole + 4).isValid());
    EXPECT_EQ(bag.rowCount(bag.index(0)), 0);
}
