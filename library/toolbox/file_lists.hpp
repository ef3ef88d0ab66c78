// The lists of files and crash logs on the controller.
#pragma once

#include "bindings/foundation/array.hpp"
#include "bindings/objc/part.hpp"
#include "library/toolbox/floating_view_controller.hpp"

namespace wentra::toolbox {

/// The two folders of the file panes with what is told of a file, and the list of crash logs.
class FileLists : public objc::Part<FloatingViewController> {
public:
    using Part::Part;
    static FileLists& of(objc::Object controller);
    static constexpr auto methods() {
        return std::array{
            objc::property<"path1", &FileLists::path1_>(),
            objc::property<"path2", &FileLists::path2_>(),
            objc::property<"fileDate1", &FileLists::date1_>(),
            objc::property<"fileDate2", &FileLists::date2_>(),
            objc::property<"fileSize1", &FileLists::size1_>(),
            objc::property<"fileSize2", &FileLists::size2_>(),
            objc::property<"ipsFiles", &FileLists::crashLogs_>(),
            objc::property<"ipsFilesOriginal", &FileLists::originalCrashLogs_>(),
            objc::property<"ipsFilesMutable", &FileLists::mutableCrashLogs_>(),
            objc::property<"sortedIpsFiles", &FileLists::sortedCrashLogs_>(),
        };
    }

    /// Nothing is listed yet.
    void begin() {
        crashLogs_ = ns::MutableArray::make();
        sortedCrashLogs_ = ns::MutableArray::make();
    }

private:
    objc::Strong<ns::String> path1_;
    objc::Strong<ns::String> path2_;
    objc::Strong<objc::Object> date1_;
    objc::Strong<objc::Object> date2_;
    objc::Strong<objc::Object> size1_;
    objc::Strong<objc::Object> size2_;
    objc::Strong<ns::Array> crashLogs_;
    objc::Strong<ns::Array> originalCrashLogs_;
    objc::Strong<ns::Array> mutableCrashLogs_;
    objc::Strong<ns::Array> sortedCrashLogs_;
};

} // namespace wentra::toolbox
