#include <memory>

#include "front/RequestManager.h"

int main(int argc, char** argv) {
    auto manager = std::make_shared<tarn::RequestManager>();
    return manager->process_command(argc, argv);
}
