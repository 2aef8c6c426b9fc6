#pragma once

#include "core/Export.h"
#include "core/Status.h"
#include "core/Types.h"
#include "transform/VCPKeyframeData.h"

#include <string>
#include <vector>

class CEffectInfoImpl;

/// How a menu element reaches the effect behind it: a handle that holds one pointer and nothing
/// else, so that copies of it see the same effect.
///
/// Without a target, an operation that the comments don't tell otherwise gives 0 and touches
/// nothing. With one, a null output gives `status::kNullPointer`, and a number that is not finite
/// `status::kBadArgument`. Times are seconds, angles degrees.
class VANTREL_API CQZEffect
{
public:
    /// @name Target
    /// @{
    bool exists() const { return m_effectInfo != nullptr; }

    /// `status::kNothingDone` when the handle has a target already.
    vantrel::Status Create();
    vantrel::Status Delete();
    vantrel::Status Attach();

    /// Gives the handle its target, which stays its owner's and has to outlive it; null takes it
    /// away.
    vantrel::Status Attach(CEffectInfoImpl* effect);
    /// @}

    /// @name Data
    /// @{
    /// The effect's XML subtree, and its child "plugin_data"; null when there is none. They stay the
    /// effect's, and good until it is changed.
    _xmlNode* getXMLData() const;
    _xmlNode* getXMLPlugInData() const;

    /// Makes a copy of `node` the effect's data. `status::kUnexpected` without a target.
    vantrel::Status setXMLData(_xmlNode* node);

    /// Puts a copy of `node` in place of "plugin_data"; null only takes that out.
    /// `status::kNotAvailable` when the effect has no data.
    vantrel::Status setXMLPlugInData(_xmlNode* node);
    /// @}

    /// @name Pose
    /// The start keys at 0.0 of the transform in "plugin_data". Each of `x`, `y` and `z` as outputs
    /// may be null.
    /// @{
    /// Reads any key. Without such a key translation and rotation are 0, scaling is 1 and handles
    /// fail. `status::kUnexpected` without a target; an effect without data gives 0 and touches
    /// nothing.
    vantrel::Status get3DKeyFrame(unsigned long mask, double time, KVC_KEYFRAME_TYPE type, float* x,
                                  float* y, float* z, unsigned long* caps) const;
    vantrel::Status getTranslation(float* x, float* y, float* z) const;
    vantrel::Status getRotation(float* x, float* y, float* z) const;
    vantrel::Status getScaling(float* x, float* y, float* z) const;
    vantrel::Status getHandle(float* x, float* y, float* z) const;

    /// A key that is there keeps its `caps`, a new one allows all axes. `status::kNotAvailable`
    /// when the effect has no data.
    vantrel::Status setTranslation(float x, float y, float z);
    vantrel::Status setRotation(float x, float y, float z);
    vantrel::Status setScaling(float x, float y, float z);
    vantrel::Status setHandle(float x, float y, float z);
    /// @}

    /// @name Effect
    /// @{
    vantrel::Status getID(long* out) const;
    long getGroupID() const; ///< always -1
    vantrel::Status setGroupID(long id);
    vantrel::Status getAlphaMask(std::string* out) const; ///< always `status::kNothingDone`
    /// The file of the alpha mask; an empty path takes it away.
    vantrel::Status setAlphaMask(std::string path);
    vantrel::Status setMaskSize(double width, double height);
    vantrel::Status getModelRect(std::vector<FPoint>& corners) const;
    /// Width over height, always 16/9.
    vantrel::Status getProductionAspectRatio(double* out) const;
    /// @}

    /// @name Place and source
    /// Of the complete object, with `status::kNothingDone` when that has no place or no source.
    /// @{
    vantrel::Status getStartOffset(double* out) const;
    vantrel::Status setStartOffset(double seconds);
    vantrel::Status getEndOffset(double* out) const;
    vantrel::Status setEndOffset(double seconds);
    vantrel::Status getSource(std::string* out) const;
    vantrel::Status setSource(std::string path);
    vantrel::Status getSourceRotation(long* out) const;
    vantrel::Status setSourceRotation(long rotation);
    vantrel::Status getInPoint(double* out) const;
    vantrel::Status setInPoint(double seconds);
    vantrel::Status getOutPoint(double* out) const;
    vantrel::Status setOutPoint(double seconds);
    /// `status::kNullPointer` for a null `out` or without a target; otherwise 0, with `out`
    /// untouched.
    vantrel::Status GetSourceAspect(double* out) const;
    /// @}

private:
    vantrel::Status set3DKeyFrame(unsigned long mask, float x, float y, float z);

    CEffectInfoImpl* m_effectInfo = nullptr; ///< not owned
};
