#include <htdrdd91/component/entry/exports.h>

int interface = 1; // the component's headers must not define such names

#include <htdrdd91/htdrdd91.h>

int main(int argc, char** argv) {
    const auto rdd = htdrdd::Make<htdrdd::clsHTDRDD>();
    return argc == 2 && interface == 1 && rdd->Read(htdrdd::FromNativePath(argv[1])) &&
                   rdd->Version() == htdrdd::VersionText()
               ? 0
               : 1;
}
