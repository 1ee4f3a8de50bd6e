#include "ui/ListDifference.h"

#include <QHash>

#include <algorithm>
#include <vector>

namespace {

/// Whether a row shows and holds the very same: every character and bit.
bool identical(const BlogPost &left, const BlogPost &right)
{
    const auto sameText = [](const QString &one, const QString &other) {
        return one.size() == other.size() && (one.constData() == other.constData() || one == other);
    };
    return left.id == right.id && left.date.bits() == right.date.bits()
        && sameText(left.title, right.title) && sameText(left.content, right.content)
        && sameText(left.description, right.description)
        && sameText(left.permalink, right.permalink);
}

/// A post's id with all its bits in the hash, so that no choice of ids makes the list slow.
struct RowId
{
    QUuid id;

    friend bool operator==(const RowId &, const RowId &) = default;
    friend size_t qHash(const RowId &row, size_t seed) noexcept
    {
        return qHashBits(&row.id, sizeof row.id, seed);
    }
};

/// Walks both lists from their last rows to their first.
class Comparison
{
public:
    Comparison(const BlogPosts &before, const BlogPosts &after)
        : m_before(before)
        , m_after(after)
        , m_oldEnd(before.size())
        , m_newEnd(after.size())
    {
    }

    QList<ListStep> steps()
    {
        trim();
        const qsizetype changedInOld = m_oldEnd - m_start;
        const qsizetype changedInNew = m_newEnd - m_start;
        while (m_oldEnd > m_start || m_newEnd > m_start) {
            stepBack();
            if (m_steps.size() > mostListSteps) {
                m_steps.clear();
                append(ListStep::Kind::Remove, m_start, changedInOld);
                append(ListStep::Kind::Insert, m_start, changedInNew);
                return m_steps;
            }
        }
        appendGap();
        return m_steps;
    }

private:
    static constexpr qsizetype none = -1;

    /// Passes over what both lists begin and end with.
    void trim()
    {
        const auto [before, after] = std::mismatch(m_before.cbegin(), m_before.cend(),
                                                   m_after.cbegin(), m_after.cend(), identical);
        m_start = before - m_before.cbegin();
        while (m_oldEnd > m_start && m_newEnd > m_start
               && identical(m_before[m_oldEnd - 1], m_after[m_newEnd - 1])) {
            --m_oldEnd;
            --m_newEnd;
        }
    }

    /// Decides on the last row that is left of one list or of both.
    void stepBack()
    {
        const bool both = m_oldEnd > m_start && m_newEnd > m_start;
        if (both && !m_paired && m_before[m_oldEnd - 1].id == m_after[m_newEnd - 1].id) {
            keepRow();
            return;
        }
        if (both && !m_paired)
            pairRows();
        const qsizetype newPlace = m_oldEnd > m_start ? newPlaceOf(m_oldEnd - 1) : none;
        const qsizetype oldPlace = m_newEnd > m_start ? oldPlaceOf(m_newEnd - 1) : none;
        if (both && newPlace == m_newEnd - 1) {
            keepRow();
        } else if (m_oldEnd > m_start && newPlace == none) {
            removeRow();
        } else if (m_newEnd > m_start && oldPlace == none) {
            insertRow();
        } else if (m_newEnd - newPlace > m_oldEnd - oldPlace) {
            // Both rows changed places. The one that went farther counts as the one that moved.
            m_oldPlaces[newPlace - m_start] = none;
            removeRow();
        } else {
            m_newPlaces[oldPlace - m_start] = none;
            insertRow();
        }
    }

    void keepRow()
    {
        appendGap();
        --m_oldEnd;
        --m_newEnd;
        if (!identical(m_before[m_oldEnd], m_after[m_newEnd]))
            append(ListStep::Kind::Update, m_oldEnd, 1);
    }

    void removeRow()
    {
        --m_oldEnd;
        ++m_removed;
    }

    void insertRow()
    {
        --m_newEnd;
        ++m_inserted;
    }

    /// Ends the run of rows that came and went since the last row that stayed.
    void appendGap()
    {
        append(ListStep::Kind::Remove, m_oldEnd, m_removed);
        append(ListStep::Kind::Insert, m_oldEnd, m_inserted);
        m_removed = 0;
        m_inserted = 0;
    }

    void append(ListStep::Kind kind, qsizetype first, qsizetype count)
    {
        if (count == 0)
            return;
        const bool joins = kind == ListStep::Kind::Update && !m_steps.isEmpty()
            && m_steps.last().kind == kind && m_steps.last().first == first + count;
        if (joins) {
            m_steps.last().first = first;
            m_steps.last().count += count;
        } else {
            m_steps.append({.kind = kind, .first = first, .count = count});
        }
    }

    /// Finds each remaining row's place in the other list.
    void pairRows()
    {
        m_paired = true;
        const qsizetype oldCount = m_oldEnd - m_start;
        const qsizetype newCount = m_newEnd - m_start;
        m_newPlaces.assign(oldCount, none);
        m_oldPlaces.assign(newCount, none);

        // Of the rows that share an id: the last that has no partner yet, and the one before each.
        QHash<RowId, qsizetype> lastPlaces;
        lastPlaces.reserve(newCount);
        std::vector<qsizetype> placesBefore(newCount, none);
        for (qsizetype row = 0; row < newCount; ++row) {
            const RowId id{m_after[m_start + row].id};
            const auto known = lastPlaces.find(id);
            if (known == lastPlaces.end()) {
                lastPlaces.insert(id, row);
            } else {
                placesBefore[row] = known.value();
                known.value() = row;
            }
        }
        for (qsizetype row = oldCount - 1; row >= 0; --row) {
            const auto partner = lastPlaces.find(RowId{m_before[m_start + row].id});
            if (partner == lastPlaces.end() || partner.value() == none)
                continue;
            m_newPlaces[row] = m_start + partner.value();
            m_oldPlaces[partner.value()] = m_start + row;
            partner.value() = placesBefore[partner.value()];
        }
    }

    qsizetype newPlaceOf(qsizetype oldRow) const
    {
        return m_paired ? m_newPlaces[oldRow - m_start] : none;
    }

    qsizetype oldPlaceOf(qsizetype newRow) const
    {
        return m_paired ? m_oldPlaces[newRow - m_start] : none;
    }

    const BlogPosts &m_before;
    const BlogPosts &m_after;
    qsizetype m_start = 0;  ///< where both lists' remaining rows begin
    qsizetype m_oldEnd = 0; ///< one past the last remaining row of the old list
    qsizetype m_newEnd = 0; ///< and of the new one
    qsizetype m_removed = 0;
    qsizetype m_inserted = 0;
    bool m_paired = false;
    std::vector<qsizetype> m_newPlaces; ///< for each old row from m_start on, or none
    std::vector<qsizetype> m_oldPlaces; ///< for each new row from m_start on, or none
    QList<ListStep> m_steps;
};

} // namespace

QList<ListStep> listDifference(const BlogPosts &before, const BlogPosts &after)
{
    return Comparison(before, after).steps();
}
