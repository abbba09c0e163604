#pragma once

#include "trace/bundle/Bundle.h"

namespace replay {

class ReplayFolder;

/// What a bundle has taken along, in the folder of a replay.
class BundleLayout
{
public:
    /// The bundle is open, and outlives this.
    explicit BundleLayout(const trace::Bundle& bundle) : m_bundle(bundle) {}

    /// Puts store, profiles and the files of listed folders into their places, each file of a
    /// listing as large as it was.
    void lay(ReplayFolder& replay) const;

private:
    using File = trace::BundleIndex::File;

    void layProfile(const File& profile, ReplayFolder& replay) const;
    void layFolder(const File& folder, ReplayFolder& replay) const;

    const trace::Bundle& m_bundle;
};

} // namespace replay
