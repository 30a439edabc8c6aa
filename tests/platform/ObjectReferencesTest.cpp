// Reference rules of platform objects: smart pointers count, and the last release deletes a heap
// object.
#include <gtest/gtest.h>

#include <OdRxObjectImpl.h>

namespace {
class Tracked : public OdRxObject
{
public:
    explicit Tracked(bool* destroyed) : m_destroyed(destroyed) {}
    ~Tracked() override { *m_destroyed = true; }

private:
    bool* m_destroyed;
};
} // namespace

TEST(ObjectReferences, SmartPointersHoldOneReferenceEachAndTheLastReleaseDeletes)
{
    bool destroyed = false;
    OdSmartPtr<Tracked> first = OdRxObjectImpl<Tracked>::createObject(&destroyed);
    Tracked* object = first.get();
    EXPECT_EQ(object->numRefs(), 1);

    OdSmartPtr<Tracked> copy = first;
    OdRxObjectPtr base = first;
    EXPECT_EQ(object->numRefs(), 3);

    copy = nullptr;
    base.release();
    EXPECT_EQ(object->numRefs(), 1);

    // Attaching takes over a reference that the caller already holds: no count is added.
    object->addRef();
    OdSmartPtr<Tracked> attached(object, kOdRxObjAttach);
    EXPECT_EQ(object->numRefs(), 2);
    attached.release();

    EXPECT_FALSE(destroyed);
    first = OdSmartPtr<Tracked>();
    EXPECT_TRUE(destroyed);
}
