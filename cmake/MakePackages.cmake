# Makes a zip and an installer of the files that CPack has collected, and what vouches for them: a bill of materials, the
# manifest for winget and the checksums of all. Their bytes depend only on the files and on the date of the commit (or
# SOURCE_DATE_EPOCH); with a certificate in $HUEVOX_CERTIFICATE the programs are signed, which is never the same twice.
set(epoch $ENV{SOURCE_DATE_EPOCH})
if(NOT epoch)
    execute_process(
        COMMAND git -C ${CPACK_HUEVOX_SOURCE} log -1 --format=%ct
        OUTPUT_VARIABLE epoch OUTPUT_STRIP_TRAILING_WHITESPACE COMMAND_ERROR_IS_FATAL ANY)
endif()
set(ENV{SOURCE_DATE_EPOCH} ${epoch})

set(folder ${CPACK_TEMPORARY_DIRECTORY})
file(GLOB files RELATIVE ${folder} ${folder}/*)
list(SORT files)

set(version ${CPACK_PACKAGE_VERSION})
set(name ${CPACK_PACKAGE_DIRECTORY}/Huevox-${version})
set(zip ${name}-windows-x64.zip)
set(setup ${name}-setup.exe)
set(bill ${name}.spdx.json)
set(winget ${name}-winget)
set(sums ${CPACK_PACKAGE_DIRECTORY}/SHA256SUMS)
file(REMOVE_RECURSE ${zip} ${setup} ${bill} ${winget} ${sums})

set(signing "")
if(NOT "$ENV{HUEVOX_CERTIFICATE}" STREQUAL "")
    set(sign ${CPACK_HUEVOX_SOURCE}/installer/sign)
    set(signing -DSIGN=${sign})
    execute_process(COMMAND ${sign} ${folder}/Huevox.exe COMMAND_ERROR_IS_FATAL ANY)
endif()

# The installer's side picture.
set(picture ${CPACK_TOPLEVEL_DIRECTORY}/side)
execute_process(
    COMMAND rsvg-convert --width=96 --height=96 --page-width=164 --page-height=314 --left=34 --top=109
        --background-color=white --output=${picture}.png ${CPACK_HUEVOX_SOURCE}/resources/icons/huevox.svg
    COMMAND_ERROR_IS_FATAL ANY)
execute_process(COMMAND convert ${picture}.png -alpha off BMP3:${picture}.bmp COMMAND_ERROR_IS_FATAL ANY)

# Both contain the dates of their files; a zip as local time.
execute_process(
    COMMAND touch --date=@${epoch} ${files} ${picture}.bmp WORKING_DIRECTORY ${folder} COMMAND_ERROR_IS_FATAL ANY)
set(ENV{TZ} UTC)
execute_process(COMMAND zip -q -X -9 ${zip} ${files} WORKING_DIRECTORY ${folder} COMMAND_ERROR_IS_FATAL ANY)
execute_process(
    COMMAND makensis -V2 -WX -NOCD -DVERSION=${version} -DFILES=${folder} -DICON=${CPACK_HUEVOX_ICON}
        -DPICTURE=${picture}.bmp -DOUTPUT=${setup} ${signing} ${CPACK_HUEVOX_SOURCE}/installer/Huevox.nsi
    COMMAND_ERROR_IS_FATAL ANY)

execute_process(
    COMMAND ${CPACK_HUEVOX_SOURCE}/installer/bill-of-materials --version ${version} --epoch ${epoch}
        --home-page ${CPACK_HUEVOX_HOME_PAGE} --downloads ${CPACK_HUEVOX_DOWNLOADS} --map ${CPACK_HUEVOX_MAP}
        --tools "${CPACK_HUEVOX_TOOLS}" --stub /usr/share/nsis/Stubs/lzma_solid-amd64-unicode
        --files ${folder} --setup ${setup} --zip ${zip} ${bill}
    COMMAND_ERROR_IS_FATAL ANY)

# The manifest's three files, named as winget wants them.
set(identifier HuevoxAuthors.Huevox)
cmake_path(GET setup FILENAME setup_name)
set(url ${CPACK_HUEVOX_DOWNLOADS}/${setup_name})
file(SHA256 ${setup} checksum)
string(TOUPPER ${checksum} checksum)
string(TIMESTAMP date %Y-%m-%d UTC)
file(STRINGS ${CPACK_HUEVOX_SOURCE}/LICENSE copyright REGEX "^Copyright" LIMIT_COUNT 1)
foreach(part version installer locale.en-GB)
    string(REPLACE ".version" "" file ${identifier}.${part})
    configure_file(${CPACK_HUEVOX_SOURCE}/installer/winget/${part}.yaml.in ${winget}/${file}.yaml @ONLY)
endforeach()

# In the form that sha256sum --check reads.
file(GLOB_RECURSE released RELATIVE ${CPACK_PACKAGE_DIRECTORY} ${setup} ${zip} ${bill} ${winget}/*)
list(SORT released)
foreach(file IN LISTS released)
    file(SHA256 ${CPACK_PACKAGE_DIRECTORY}/${file} checksum)
    file(APPEND ${sums} "${checksum}  ${file}\n")
endforeach()
