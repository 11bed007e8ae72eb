#include "sdk/SignalConnectionCollection.h"

#include <gtest/gtest.h>

using vantrix::sdk::SignalConnectionCollection;

TEST(SignalConnectionCollection, DisconnectsWhenClearedAndWhenItGoes)
{
    boost::signals2::signal<void()> signal;
    int calls = 0;
    {
        SignalConnectionCollection collection;
        EXPECT_TRUE(collection.empty());
        collection.add(signal.connect([&calls] { ++calls; }));
        collection.add(signal.connect([&calls] { ++calls; }));
        {
            SignalConnectionCollection::ConnectionBlocker const blocker(collection);
            signal();
            EXPECT_EQ(calls, 0);
        }
        signal();
        EXPECT_EQ(calls, 2);
        collection.clear();
        EXPECT_TRUE(collection.empty());
        collection.add(signal.connect([&calls, &collection] {
            ++calls;
            collection.clear();
        }));
        signal();
        signal();
        EXPECT_EQ(calls, 3);
        collection.add(signal.connect([&calls] { ++calls; }));
    }
    signal();
    EXPECT_EQ(calls, 3);
}
