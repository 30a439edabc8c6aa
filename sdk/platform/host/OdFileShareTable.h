#pragma once

#include <QString>

#include <map>

// The files that streams of this process hold open, with the access each took and the
// sharing each allows, so that a new request is refused as Windows would refuse it.
class OdFileShareTable
{
public:
    static OdFileShareTable& instance();

    // Whether a stream of `key` (a file's absolute path) may be opened with `access` and
    // `share` (Oda values) next to the streams that are open already.
    bool admits(const QString& key, unsigned access, unsigned share) const;
    void add(const QString& key, unsigned access, unsigned share);
    void remove(const QString& key, unsigned access, unsigned share);

private:
    struct Opening
    {
        unsigned access;
        unsigned share;
    };

    static bool denies(unsigned share, unsigned access);

    std::multimap<QString, Opening> m_open;
};
