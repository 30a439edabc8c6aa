#pragma once

// The social-service connector's question view (library "QuillonQnMurmurConnector"): where
// users ask the community and read answers.
//
// Modules use the class; its calls reach the library through the module's delay-load import.
// Without the library, nothing happens.
class IQuestionView
{
public:
    bool addiQuestionView();
    void showiQuestionView();
};

extern "C" {
using IQuestionViewAddFunction = bool (*)();
using IQuestionViewShowFunction = void (*)();
}

namespace IQuestionViewEntryPoints {
constexpr const char* library = "QuillonQnMurmurConnector";
constexpr const char* addiQuestionView = "IQuestionView_addiQuestionView";
constexpr const char* showiQuestionView = "IQuestionView_showiQuestionView";
} // namespace IQuestionViewEntryPoints
