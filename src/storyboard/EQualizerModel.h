#pragma once

#include "core/Export.h"
#include "core/Status.h"

#include <libxml/tree.h>

#include <memory>

/// One equalizer curve: a value for each of a row of frequencies.
class VANTREL_API EQualizerModel
{
public:
    /// Reads the model from an "EqualizerModel" element. Null, or an element that tells no sensible
    /// model, leaves one that is not valid.
    explicit EQualizerModel(_xmlNode* node);
    EQualizerModel(const EQualizerModel&) = delete;
    EQualizerModel& operator=(const EQualizerModel&) = delete;

    /// Makes the model one without bands, not valid.
    void Init();

    /// Null gives `status::kFailure`. Reading gives `status::kNothingDone` when the number of bands
    /// or the length is missing, and `status::kBadArgument`, without any arrays, for a number of
    /// bands that is negative, above 4,096, or out of proportion to those that the file has.
    vantrel::Status PersistToXML(_xmlNode* node, bool save);

    bool m_isValid; ///< the model was read, and every band made sense
    long m_bands;
    long m_fftLength; ///< samples of the transform
    /// Both arrays have `m_bands` values, or are null. Bands that the file lacks don't take a slot;
    /// the slots left over are 0.
    std::unique_ptr<float[]> m_frequencies; ///< hertz
    std::unique_ptr<float[]> m_values;

private:
    vantrel::Status Save(_xmlNode* node) const;
    vantrel::Status Load(_xmlNode* node);
    void LoadBand(const _xmlNode* band, long slot);
};
