# h264_fields.pl IDR|OPEN FRAMES FOLDER: writes an H.264 stream whose frames are coded as two fields
# each, as camcorders and broadcasters do: each frame into a file 0.h264, 1.h264, ... in the order of
# decoding.
#
# The frames are 160x120 and show their number like those of all samples; see lib.sh. Every second one
# is a disposable B-picture. With IDR, every 13th frame is a key frame whose first field is an IDR
# picture, and whose second one is predicted from that. With OPEN, only the first frame is like that;
# every 14th one is a key frame of two intra fields with a recovery point, and is followed by the
# picture shown before it. The number is stored uncompressed, everything else is grey or skipped.
use strict;
use warnings;

my ($kind, $frames, $folder) = @ARGV;
my $width = 160;
my $columns = $width / 16;
my $rows = 4; # of macroblocks in a field: 64 lines, of which 60 are shown

sub golomb {
    my $code = sprintf '%b', $_[0] + 1;
    return '0' x (length($code) - 1) . $code;
}

sub signed_golomb { return golomb($_[0] > 0 ? 2 * $_[0] - 1 : -2 * $_[0]) }

sub fixed {
    my ($value, $bits) = @_;
    return sprintf '%0*b', $bits, $value;
}

# unit HEADER BITS: a unit with a start code; the bits get their end, and bytes that look like a start
# code are split.
sub unit {
    my ($header, $bits) = @_;
    $bits .= '1';
    $bits .= '0' x (-length($bits) % 8);
    my $bytes = pack 'B*', $bits;
    $bytes =~ s/\0\0(?=[\0-\3])/\0\0\x03/g;
    return "\0\0\0\1" . chr($header) . $bytes;
}

# Main profile, level 3; frame numbers and picture order counts of eight bits; two reference frames;
# field coding; eight lines cropped; 25 frames per second.
sub sequence_parameters {
    my $vui = '0000' . '1' . fixed(1, 32) . fixed(50, 32) . '1' . '000' . '1' . '1' . golomb(0) .
        golomb(0) . golomb(10) . golomb(10) . golomb(1) . golomb(2);
    return unit(0x67, fixed(77, 8) . fixed(0, 8) . fixed(30, 8) . golomb(0) . golomb(4) .
        golomb(0) . golomb(4) . golomb(2) . '0' . golomb($columns - 1) . golomb($rows - 1) . '0' . '0' . '1' .
        '1' . golomb(0) . golomb(0) . golomb(0) . golomb(2) . '1' . $vui);
}

# Without entropy coding by arithmetic, with one reference by default, and with control over the
# deblocking filter, which is off.
sub picture_parameters {
    return unit(0x68, golomb(0) . golomb(0) . '0' . '0' . golomb(0) . golomb(0) . golomb(0) .
        '0' . '00' . signed_golomb(0) . signed_golomb(0) . signed_golomb(0) . '1' . '0' . '0');
}

# brightness NUMBER X LINE: of the number in the picture, grey elsewhere.
sub brightness {
    my ($number, $x, $line) = @_;
    my $block = int($x / 10);
    return 128 if $line >= 20;
    my $bit = $block == 0 ? 1 : $block == 15 ? 0 : ($number >> (14 - $block)) & 1;
    return ($line < 10) == ($bit == 1) ? 235 : 16;
}

# samples NUMBER BOTTOM COLUMN ROW: the samples of an uncompressed macroblock of a field.
sub samples {
    my ($number, $bottom, $column, $row) = @_;
    my @luma;
    for my $y (0 .. 15) {
        my $line = 2 * (16 * $row + $y) + $bottom;
        push @luma, map { brightness($number, 16 * $column + $_, $line) } 0 .. 15;
    }
    return pack 'C*', @luma, (128) x 128;
}

# field NUMBER BOTTOM TYPE REFERENCE IDR FRAME_NUMBER ORDER: one coded field. Of predicted fields, only
# the first row is coded.
sub field {
    my (%of) = @_;
    my %first_type = (I => 0, P => 5, B => 23); # of the types of macroblocks, that of intra ones
    my %slice_type = (P => 5, B => 6, I => 7);
    my $is_intra = $of{type} eq 'I';
    my $bits = golomb(0) . golomb($slice_type{$of{type}}) . golomb(0) . fixed($of{frame_number} % 256, 8) .
        '1' . $of{bottom};
    $bits .= golomb($of{idr_id}) if $of{idr};
    $bits .= fixed($of{order} % 256, 8);
    $bits .= '1' if $of{type} eq 'B';        # direct prediction in space
    $bits .= '0' if !$is_intra;              # the default number of references
    $bits .= '0' if !$is_intra;              # in the default order
    $bits .= '0' if $of{type} eq 'B';        # in both lists
    $bits .= $of{idr} ? '00' : '0' if $of{reference};
    $bits .= signed_golomb(0) . golomb(1);                  # quantiser, no deblocking
    my $header = ($of{reference} ? 0x60 : 0) | ($of{idr} ? 5 : 1);

    my $coded_rows = $is_intra ? $rows : 1;
    # The bits before the first macroblock's samples are aligned together with the unit's header,
    # which is a whole byte.
    for my $row (0 .. $coded_rows - 1) {
        for my $column (0 .. $columns - 1) {
            $bits .= golomb(0) if !$is_intra;    # none skipped before it
            $bits .= golomb($first_type{$of{type}} + 25);
            $bits .= '0' x (-length($bits) % 8);
            $bits .= unpack 'B*', samples($of{number}, $of{bottom}, $column, $row);
        }
    }
    $bits .= golomb($columns * ($rows - 1)) if !$is_intra;
    return unit($header, $bits);
}

# frame PLACE …: writes both fields, with what precedes them.
sub frame {
    my ($place, %of) = @_;
    my $delimiter = "\0\0\0\1\x09\xf0";
    my $recovery = unit(0x06, fixed(6, 8) . fixed(1, 8) . '11000100');
    my $start = $of{is_key} ? sequence_parameters() . picture_parameters() : '';
    $start .= $recovery if $of{is_key} && !$of{idr};
    my $second = $of{idr} ? 'P' : $of{type};
    open my $file, '>:raw', "$folder/$place.h264" or die "$folder/$place.h264: $!\n";
    print $file $delimiter, $start, field(%of, bottom => 0, order => 2 * $of{order});
    print $file $delimiter,
        field(%of, bottom => 1, order => 2 * $of{order} + 1, type => $second, idr => 0);
    close $file or die "$folder/$place.h264: $!\n";
}

my $is_open = $kind eq 'OPEN';
my $closed_group = $is_open ? $frames : 13;
die "the last picture has no successor\n" if $frames % $closed_group || $closed_group % 2 == 0;
my ($frame_number, $idr_id) = (0, 0);
for my $place (0 .. $frames - 1) {
    my $in_group = $place % $closed_group;
    my $is_idr = $in_group == 0;
    my $is_key = $is_idr || ($is_open && $place % 14 == 13);
    my $is_disposable = !$is_idr && $in_group % 2 == 0;
    # The order of decoding: 0 2 1 4 3 6 5 ...
    my $shown = $is_idr ? 0 : $is_disposable ? $in_group - 1 : $in_group + 1;
    if ($is_idr) {
        $frame_number = 0;
        $idr_id = 1 - $idr_id;
    }
    frame(
        $place, number => $place - $in_group + $shown, is_key => $is_key, idr => $is_idr,
        idr_id => $idr_id, type => $is_key ? 'I' : $is_disposable ? 'B' : 'P',
        reference => !$is_disposable, frame_number => $frame_number, order => $shown);
    $frame_number++ if !$is_disposable;
}
