// SPDX-License-Identifier: MIT
#include "ZipExtractorTest.h"

namespace {

using ZipLinkTest = ZipExtractorTest;

ZipWriter::Entry linkEntry(const QByteArray& name, const QByteArray& target)
{
    return {.name = name, .data = target, .mode = S_IFLNK | 0777};
}

const auto leadsOutside = u"leads outside the folder"_s;

} // namespace

TEST_F(ZipLinkTest, refusesLinksThatPointOut)
{
    expectRefusal(linkEntry("l", "/etc"), refusal(u"l"_s, leadsOutside));
    expectRefusal(linkEntry("l", ".."), refusal(u"l"_s, leadsOutside));
    expectRefusal(linkEntry("a/l", "../../x"), refusal(u"a/l"_s, leadsOutside));
    expectRefusal(linkEntry("a/l", "b/../../../x"), refusal(u"a/l"_s, leadsOutside));
}

TEST_F(ZipLinkTest, refusesALinkThatPointsOutThroughAnotherOne)
{
    ZipWriter zip;
    zip.addLink("a/b/c", "../..").addLink("d", "a/b/c/..");

    expectRefusal(zip, refusal(u"d"_s, leadsOutside));
}

TEST_F(ZipLinkTest, refusesLinksThatGoRoundInCircles)
{
    expectRefusal(linkEntry("l", "l"), refusal(u"l"_s, u"leads through too many links"_s));
}

TEST_F(ZipLinkTest, refusesLinksThatLeadNowhere)
{
    const auto reason = u"leads nowhere"_s;
    expectRefusal(linkEntry("l", ""), refusal(u"l"_s, reason));
    expectRefusal(linkEntry("l", QByteArray(2049, 'n')), refusal(u"l"_s, reason));
}

TEST_F(ZipLinkTest, refusesLinksThatLeadAlongTooLongAPath)
{
    // Each of the targets is short enough by itself.
    const auto half = QByteArray("n").repeated(250) + '/';
    const auto target = half.repeated(5);
    ZipWriter zip;
    zip.addLink(target + "again", target).addLink("l", target + "again/" + half);
    EXPECT_EQ(extract(zip), 1);
    ASSERT_EQ(log.size(), 1);
    EXPECT_TRUE(log.first().endsWith(u"leads along too long a path."_s)) << log.first();
    EXPECT_TRUE(folder.names(u"un packed"_s).isEmpty());
}

TEST_F(ZipLinkTest, refusesLinksThatWouldTakeHoursToFollow)
{
    // Each of the many links leads through all of the chain, and each of that by a long way.
    const auto detour = QByteArray("b/").repeated(340) + QByteArray("../").repeated(340);
    ZipWriter zip;
    for (int i = 0; i < 39; ++i)
        zip.addLink("chain" + QByteArray::number(i), detour + "chain" + QByteArray::number(i + 1));
    for (int i = 0; i < 1'000; ++i)
        zip.addLink(QByteArray::number(i), "chain0");

    expectRefusal(zip, u"The archive's links are too many to follow."_s);
}
