#include "unit/notes/corpus.h"

namespace tavrin::tests {

std::vector<NoteSample> AllSamples() {
    std::vector<NoteSample> all;
    for (const auto& part : {TextSamples(), LookSamples(), StructureSamples(), RoughSamples()})
        all.insert(all.end(), part.begin(), part.end());
    return all;
}

}  // namespace tavrin::tests
